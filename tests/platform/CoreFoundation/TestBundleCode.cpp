#include <cstdlib>

/// Leaves a sign in the environment that this code was loaded.
static const int sign = setenv("KORVEX_TEST_BUNDLE", "loaded", 1);
