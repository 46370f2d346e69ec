// A stand-in for one of the product's sibling libraries, loaded by name in
// the SharedLibrary tests.

#include <cstdint>

#define Q9_TEST_EXPORT extern "C" __attribute__((visibility("default")))

namespace {
int32_t g_touches = 0;
}

Q9_TEST_EXPORT int32_t Q9TestSibling_Twice(int32_t value) { return value * 2; }

Q9_TEST_EXPORT const char* Q9TestSibling_Greeting() { return "hello from the sibling"; }

Q9_TEST_EXPORT void Q9TestSibling_Touch() { ++g_touches; }

Q9_TEST_EXPORT int32_t Q9TestSibling_Touches() { return g_touches; }
