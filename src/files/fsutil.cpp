// SPDX-License-Identifier: MIT
#include "src/files/fsutil.h"

#include "platform/CoreServices/Files.h"

namespace {

constexpr SInt16 kForkNotOpen = -1;

/// A file's data fork, closed at the end of the scope.
class DataFork {
public:
    explicit DataFork(const CFURL* url) : refNum_(openURLDataFork(url, &size_)) {}

    ~DataFork() {
        if (isOpen())
            FSCloseFork(refNum_);
    }

    DataFork(const DataFork&) = delete;
    DataFork& operator=(const DataFork&) = delete;

    bool isOpen() const { return refNum_ != kForkNotOpen; }

    UInt32 size() const { return size_; }

    /// Whether everything could be read.
    bool read(std::int64_t start, std::size_t length, UInt8* bytes) const {
        std::size_t actual = 0;
        return FSReadFork(refNum_, fsFromStart, start, length, bytes, &actual) == noErr &&
               actual == length;
    }

private:
    UInt32 size_ = 0;
    SInt16 refNum_;
};

} // namespace

SInt16 openURLDataFork(const CFURL* url, UInt32* size) {
    *size = 0;
    FSRef ref;
    SInt16 fork = kForkNotOpen;
    if (!CFURLGetFSRef(url, &ref) || FSOpenFork(&ref, 0, nullptr, fsRdPerm, &fork) != noErr)
        return kForkNotOpen;
    std::int64_t wholeSize = 0;
    if (FSGetForkSize(fork, &wholeSize) != noErr) {
        FSCloseFork(fork);
        return kForkNotOpen;
    }
    *size = static_cast<UInt32>(wholeSize);
    return fork;
}

CFRef<CFData> fsGetFileContents(const CFURL* url) {
    const DataFork fork(url);
    if (!fork.isOpen() || fork.size() > kMaxFileContents)
        return nullptr;
    MallocBuffer bytes(static_cast<UInt8*>(std::malloc(fork.size())));
    if (!bytes || !fork.read(0, fork.size(), bytes.get()))
        return nullptr;
    return CFDataCreateWithBytesNoCopy(std::move(bytes), fork.size());
}

Handle fsGetFileContentsAsHandle(const CFURL* url, SInt32 offset) {
    const DataFork fork(url);
    if (!fork.isOpen() || fork.size() > kMaxFileContents)
        return {};
    const SInt32 start = offset < 0 ? 0 : offset;
    const std::int64_t length = std::int64_t{fork.size()} - start;
    Handle handle = NewHandle(length);
    if (!handle || !fork.read(start, static_cast<std::size_t>(length), *handle))
        return {};
    return handle;
}
