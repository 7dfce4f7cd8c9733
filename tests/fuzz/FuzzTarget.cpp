#include "tests/fuzz/Readers.h"

extern "C" int LLVMFuzzerTestOneInput(const UInt8* bytes, std::size_t size);

int LLVMFuzzerTestOneInput(const UInt8* bytes, std::size_t size) {
    READER({bytes, size});
    return 0;
}
