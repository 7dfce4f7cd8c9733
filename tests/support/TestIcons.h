// SPDX-License-Identifier: MIT
#pragma once

#include "platform/CoreFoundation/CFData.h"

#include <QBuffer>
#include <QImage>
#include <QtEndian>

#include <numeric>
#include <string>
#include <vector>

// Icon files written by hand, apart from the library that reads them.

inline CFRef<CFData> makeData(std::string_view bytes) {
    return CFDataCreate(reinterpret_cast<const UInt8*>(bytes.data()), std::ssize(bytes));
}

inline std::string bigEndian32Text(std::size_t number) {
    const UInt32 bytes = qToBigEndian(static_cast<UInt32>(number));
    return {reinterpret_cast<const char*>(&bytes), sizeof bytes};
}

inline std::string iconElement(const std::string& type, const std::string& content) {
    return type + bigEndian32Text(content.size() + 8) + content;
}

inline std::string iconFamily(const std::vector<std::string>& elements) {
    return iconElement("icns", std::accumulate(elements.begin(), elements.end(), std::string()));
}

inline std::string pngBytes(const QImage& image) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    return bytes.toStdString();
}

inline std::string pngBytes(int width, int height, QColor colour) {
    QImage image(width, height, QImage::Format_ARGB32);
    image.fill(colour);
    return pngBytes(image);
}

/// A PNG's signature and header chunk that claim a size, and no pixels.
inline std::string pngClaim(std::size_t width, std::size_t height) {
    const std::string real = pngBytes(1, 1, Qt::black);
    return real.substr(0, 16) + bigEndian32Text(width) + bigEndian32Text(height) + real.substr(24);
}

/// A family with a square PNG of one colour a size.
inline std::string pngFamily(const std::vector<std::pair<int, QColor>>& sizes) {
    std::vector<std::string> elements;
    for (const auto& [side, colour] : sizes)
        elements.push_back(
            iconElement("x" + std::to_string(side + 100), pngBytes(side, side, colour)));
    return iconFamily(elements);
}
