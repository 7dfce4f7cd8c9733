// SPDX-License-Identifier: MIT
#include "platform/CoreGraphics/detail/DecodedImage.h"

#include <QBuffer>
#include <QImageReader>

namespace {

/// Reads bytes in memory. They are borrowed.
class BytesReader {
public:
    BytesReader(std::span<const UInt8> bytes, const char* format)
        : content_(QByteArray::fromRawData(reinterpret_cast<const char*>(bytes.data()),
                                           static_cast<qsizetype>(bytes.size()))),
          buffer_(&content_), reader_(&buffer_, format) {
        buffer_.open(QIODevice::ReadOnly);
        reader_.setAutoDetectImageFormat(false);
    }

    QImageReader& operator*() { return reader_; }

private:
    QByteArray content_;
    QBuffer buffer_;
    QImageReader reader_;
};

QSize allowedSize(QImageReader& reader) {
    const QSize size = reader.size();
    return size.width() <= kMaxImageSide && size.height() <= kMaxImageSide ? size : QSize();
}

} // namespace

QSize imageSize(std::span<const UInt8> bytes, const char* format) {
    BytesReader reader(bytes, format);
    return allowedSize(*reader);
}

QImage decodeImage(std::span<const UInt8> bytes, const char* format, int scaledSide) {
    BytesReader reader(bytes, format);
    const QSize size = allowedSize(*reader);
    if (size.isEmpty())
        return {};
    if (scaledSide > 0)
        (*reader).setScaledSize(size.scaled(scaledSide, scaledSide, Qt::KeepAspectRatio));
    return (*reader).read().convertToFormat(QImage::Format_ARGB32_Premultiplied);
}
