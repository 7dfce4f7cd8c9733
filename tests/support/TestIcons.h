#pragma once

#include "platform/CoreFoundation/CFBase.h"

#include <QBuffer>
#include <QImage>

#include <initializer_list>
#include <string>
#include <vector>

// Icon files written by hand, apart from the library that reads them.

inline std::string bigEndian32Text(std::size_t number) {
    std::string text;
    for (int shift = 24; shift >= 0; shift -= 8)
        text.push_back(static_cast<char>(number >> shift));
    return text;
}

inline std::string iconElement(const std::string& type, const std::string& content) {
    return type + bigEndian32Text(content.size() + 8) + content;
}

inline std::string iconFamily(std::initializer_list<std::string> elements) {
    std::string body;
    for (const std::string& element : elements)
        body += element;
    return iconElement("icns", body);
}

/// Colour data of pixels that are all alike: each channel in runs of at most 130.
inline std::string packedColour(std::size_t pixels, QColor colour) {
    std::string packed;
    for (const int value : {colour.red(), colour.green(), colour.blue()}) {
        std::size_t left = pixels;
        while (left > 0) {
            // Runs are of three or more; what is left must not be one or two.
            const std::size_t run =
                left > 130 && left < 133 ? 65 : std::min<std::size_t>(left, 130);
            packed.push_back(static_cast<char>(run + 125));
            packed.push_back(static_cast<char>(value));
            left -= run;
        }
    }
    return packed;
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
    std::string body;
    for (const auto& [side, colour] : sizes)
        body += iconElement("x" + std::to_string(100 + side % 900), pngBytes(side, side, colour));
    return iconElement("icns", body);
}
