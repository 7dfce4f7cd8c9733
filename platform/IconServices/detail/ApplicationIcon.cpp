// SPDX-License-Identifier: MIT
#include "platform/IconServices/detail/ApplicationIcon.h"

#include "platform/CoreFoundation/detail/FileReading.h"
#include "platform/CoreFoundation/detail/XDGFolders.h"
#include "platform/CoreGraphics/detail/DecodedImage.h"
#include "platform/CoreServices/detail/FileCache.h"
#include "platform/IconServices/detail/IconFamily.h"

#include <QIcon>

#include <algorithm>
#include <filesystem>
#include <map>
#include <vector>

namespace {

/// The size that a drawing without pixels gets, in pixels. Enough for 32 points at any density.
constexpr int kDrawingSide = 256;

/// The folders of a theme that have applications' icons: of most themes, and of those that put the
/// size last.
constexpr const char* kThemeFolders[] = {
    "16x16/apps",   "22x22/apps",   "24x24/apps",   "32x32/apps",    "36x36/apps",
    "48x48/apps",   "64x64/apps",   "72x72/apps",   "96x96/apps",    "128x128/apps",
    "192x192/apps", "256x256/apps", "512x512/apps", "scalable/apps", "apps/16",
    "apps/22",      "apps/32",      "apps/48",      "apps/64",       "apps/scalable"};

/// A file of an icon, and its state when it was read.
struct IconFile {
    std::string path;
    FileState state;

    bool operator==(const IconFile&) const = default;
};

/// Missing files are left out.
class IconFiles {
public:
    void add(const std::string& path) {
        if (const FileState state = stateOfFile(path); state.exists)
            files_.push_back({path, state});
    }

    const std::vector<IconFile>& files() const { return files_; }

    bool areSettled() const {
        return std::ranges::all_of(files_, [](const auto& file) { return file.state.isSettled(); });
    }

private:
    std::vector<IconFile> files_;
};

/// The user's icon theme, else the one that all programs install their icons in, else the pixmaps:
/// the first data folder that has the icon there gives all sizes of it. Qt's own lookup of themes
/// would wait for a pipe of that name, and doesn't notice that a file changed.
IconFiles filesOfNamedIcon(const std::string& name) {
    IconFiles files;
    if (name.empty() || name.find('/') != name.npos)
        return files;
    for (const std::string& theme : {QIcon::themeName().toStdString(), std::string("hicolor")})
        for (const std::string& data : xdgDataFolders()) {
            const std::string path = data + "/icons/" + theme + '/';
            if (theme.empty() || !stateOfFile(path).exists)
                continue;
            for (const char* folder : kThemeFolders)
                for (const char* suffix : {".png", ".svg"})
                    files.add(path + folder + '/' + name + suffix);
            if (!files.files().empty())
                return files;
        }
    for (const std::string& data : xdgDataFolders())
        for (const char* suffix : {".png", ".svg", ".xpm"})
            if (files.files().empty())
                files.add(data + "/pixmaps/" + name + suffix);
    return files;
}

IconFiles filesOfApplication(const InstalledApplication& application) {
    const std::filesystem::path icon = application.icon;
    if (!application.isBundle && !icon.is_absolute())
        return filesOfNamedIcon(application.icon);
    IconFiles files;
    std::string path = application.icon;
    if (application.isBundle) {
        path = application.path + "/Contents/Resources/" + icon.filename().string();
        if (!path.ends_with(".icns"))
            path += ".icns";
    }
    files.add(path);
    return files;
}

void addFile(IconImages& images, const std::string& path) {
    const std::string suffix = std::filesystem::path(path).extension();
    const CFRef<const CFData> data = readRegularFile(path, kMaxIconFamilySize).data;
    if (!data)
        return;
    if (suffix == ".icns")
        images = imagesOfIconFamily(data);
    for (const char* format : {"png", "xpm"})
        if (suffix == std::string(".") + format)
            images.add(imageSize(data->bytes(), format),
                       [data, format] { return decodeImage(data->bytes(), format); });
    if (suffix == ".svg" && !imageSize(data->bytes(), "svg").isEmpty())
        images.add({kDrawingSide, kDrawingSide},
                   [data] { return decodeImage(data->bytes(), "svg", kDrawingSide); });
}

CFRef<Icon> readIcon(const IconFiles& files) {
    IconImages images;
    for (const IconFile& file : files.files())
        addFile(images, file.path);
    return images.anyDecodes() ? CFRef<Icon>::adopt(new Icon(std::move(images))) : nullptr;
}

} // namespace

CFRef<Icon> iconOfApplication(const InstalledApplication& application) {
    struct Known {
        std::vector<IconFile> files;
        bool settled = false;
        CFRef<Icon> icon;
    };

    // By the application's path. Never destroyed: an exit handler may still draw.
    static auto& icons = *new std::map<std::string, Known>;
    const IconFiles files = filesOfApplication(application);
    Known& known = icons[application.path];
    if (!known.settled || known.files != files.files())
        known = {files.files(), files.areSettled(), readIcon(files)};
    return known.icon;
}
