// SPDX-License-Identifier: MIT
#include "platform/IconServices/Icons.h"
#include "platform/IconServices/detail/IconImages.h"

#include <QPainter>

#include <cmath>

namespace {

/// The image as large as `area` allows, centred, in whole device pixels. So nothing is blurred.
QRect centredFit(const QSize& image, const QRectF& area) {
    const QSize size = QSizeF(image).scaled(area.size(), Qt::KeepAspectRatio).toSize();
    const QPointF middle = area.center();
    return {static_cast<int>(std::floor(middle.x() - size.width() / 2.0)),
            static_cast<int>(std::floor(middle.y() - size.height() / 2.0)), size.width(),
            size.height()};
}

} // namespace

OSStatus PlotIconRefInContext(CGContext* context, const CGRect* rect, IconAlignmentType alignment,
                              IconTransformType transform, const RGBColor* labelColor,
                              PlotIconRefFlags flags, IconRef icon) {
    if (!context || !rect || !icon || alignment != kAlignAbsoluteCenter ||
        transform != kTransformNone || labelColor || flags != kPlotIconRefNormalFlags)
        return paramErr;
    if (!(rect->size.width > 0 && rect->size.height > 0))
        return noErr; // else rounding to whole pixels would draw a speck
    QPainter& painter = context->painter();
    const QTransform toDevice = painter.deviceTransform();
    const QRectF area = toDevice.mapRect(context->toPainter(*rect));
    QImage image =
        icon->images().atLeast(static_cast<int>(std::ceil(std::max(area.width(), area.height()))));
    if (image.isNull())
        return noSuchIconErr;
    const QRect place = centredFit(image.size(), area);
    if (place.isEmpty())
        return noErr;
    if (image.size() != place.size())
        image = image.scaled(place.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    painter.drawImage(toDevice.inverted().mapRect(QRectF(place)), image);
    return noErr;
}
