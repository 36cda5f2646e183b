// What the sanitizers shall not report, because it is not ours. Other builds never ask.
// NOLINTBEGIN(bugprone-reserved-identifier)
extern "C" const char* __lsan_default_suppressions();
extern "C" const char* __tsan_default_suppressions();

extern "C" const char* __lsan_default_suppressions() {
  // Reading its settings, once in a process, fontconfig 2.14 loses a few values.
  return "leak:libfontconfig.so";
}

extern "C" const char* __tsan_default_suppressions() {
  // Cairo hands patterns that were given back from thread to thread, by means that only a cairo
  // made for this sanitizer would show it.
  return "race:libcairo.so";
}
// NOLINTEND(bugprone-reserved-identifier)
