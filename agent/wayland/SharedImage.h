// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>

#include <wayland-client.h>

/// A copy of an image with premultiplied alpha that the compositor can read. It goes when the
/// compositor has done with it. Null when there is no memory.
wl_buffer* shareImage(wl_shm* memory, const QImage& image);
