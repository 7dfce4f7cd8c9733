// SPDX-License-Identifier: MIT
#include "agent/wayland/SharedImage.h"

#include <cstring>
#include <sys/mman.h>
#include <unistd.h>

wl_buffer* shareImage(wl_shm* memory, const QImage& image) {
    static constexpr wl_buffer_listener kRelease = {
        [](void*, wl_buffer* buffer) { wl_buffer_destroy(buffer); }};
    const QImage pixels = image.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    const auto size = static_cast<std::size_t>(pixels.sizeInBytes());
    const int file = memfd_create("korvex", MFD_CLOEXEC);
    if (file < 0)
        return nullptr;
    wl_buffer* buffer = nullptr;
    if (ftruncate(file, static_cast<off_t>(size)) == 0) {
        void* const bytes = mmap(nullptr, size, PROT_READ | PROT_WRITE, MAP_SHARED, file, 0);
        if (bytes != MAP_FAILED) {
            std::memcpy(bytes, pixels.constBits(), size);
            munmap(bytes, size);
            wl_shm_pool* const pool = wl_shm_create_pool(memory, file, static_cast<int>(size));
            buffer = wl_shm_pool_create_buffer(pool, 0, pixels.width(), pixels.height(),
                                               static_cast<int>(pixels.bytesPerLine()),
                                               WL_SHM_FORMAT_ARGB8888);
            wl_shm_pool_destroy(pool);
            wl_buffer_add_listener(buffer, &kRelease, nullptr);
        }
    }
    close(file);
    return buffer;
}
