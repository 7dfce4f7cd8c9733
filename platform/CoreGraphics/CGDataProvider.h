// SPDX-License-Identifier: MIT
#pragma once

#include "platform/CoreFoundation/CFData.h"
#include "platform/CoreFoundation/CFURL.h"

/// The source of an image's bytes: the content of a file.
class CGDataProvider final : public CFType {
public:
    explicit CGDataProvider(CFRef<const CFData> data) : data_(std::move(data)) {}

    const CFData* data() const { return data_.get(); }

    CFTypeID typeID() const override { return CFTypeID::DataProvider; }

private:
    CFRef<const CFData> data_;
};

/// The largest file that is read, in bytes.
constexpr std::size_t kMaxImageFileSize = 16u << 20;

/// Reads the file. Null when it isn't a regular file, is too large or can't be read.
CFRef<CGDataProvider> CGDataProviderCreateWithURL(const CFURL* url);
