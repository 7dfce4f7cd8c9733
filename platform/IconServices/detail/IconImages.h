// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>

#include <functional>
#include <vector>

/// The images of one icon, each decoded when it is first asked for, and kept.
class IconImages {
public:
    /// Gives a null image when what it decodes is damaged.
    using Decoder = std::function<QImage()>;

    /// Adds an image of that size in pixels; an empty one isn't added. Of several with the same
    /// longer side, the first is taken that isn't damaged.
    void add(const QSize& size, Decoder decode);

    /// Whether at least one image decodes.
    bool anyDecodes();

    /// The smallest image with at least that many pixels on its longer side, else the largest; a
    /// null image when none decodes.
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
