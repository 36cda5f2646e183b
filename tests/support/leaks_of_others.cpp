// Leaks that the address sanitizer shall not report, because they are not ours. Other builds never
// ask.
extern "C" const char* __lsan_default_suppressions();  // NOLINT(bugprone-reserved-identifier)

extern "C" const char* __lsan_default_suppressions() {  // NOLINT(bugprone-reserved-identifier)
  // Reading its settings, once in a process, fontconfig 2.14 loses a few values.
  return "leak:libfontconfig.so";
}
