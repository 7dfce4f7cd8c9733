// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>

#include <functional>
#include <vector>

/// The images of one icon. Each is decoded when it is first needed, then kept.
class IconImages {
public:
    /// Returns a null image when its data is damaged.
    using Decoder = std::function<QImage()>;

    /// Adds an image of that size in pixels. An empty one isn't added. If several have the same
    /// longer side, the first sound one is used.
    void add(const QSize& size, Decoder decode);

    /// Whether at least one image decodes.
    bool anyDecodes();

    /// The smallest image whose longer side has at least that many pixels, else the largest. Null
    /// when none decodes.
    QImage atLeast(int side);

private:
    struct Entry {
        int side;       ///< the longer one
        Decoder decode; ///< empty once it has been called
        QImage image;
    };

    static const QImage& imageOf(Entry& entry);

    std::vector<Entry> entries_; ///< by size, growing
};
