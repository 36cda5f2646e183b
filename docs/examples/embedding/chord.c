/* Prints the answer to a JSON-RPC message, as `zyndle rpc` would: "chord MESSAGE". */
#include <stdio.h>
#include <tonelake_call.h>

int main(int argc, char** argv) {
  char* answer = argc == 2 ? tonelake_call(argv[1]) : NULL;
  if (answer == NULL) return 2;
  puts(answer);
  tonelake_free(answer);
  return 0;
}
