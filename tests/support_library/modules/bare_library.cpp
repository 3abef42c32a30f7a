// A loadable library that isn't a resource library at all.
extern "C" __attribute__((visibility("default"))) int Unrelated() {
  return 0;
}
