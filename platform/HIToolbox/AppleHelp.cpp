// SPDX-License-Identifier: MIT
#include "platform/HIToolbox/AppleHelp.h"

#include "platform/CoreFoundation/CFBundle.h"
#include "platform/CoreFoundation/Localization.h"

#include "platform/HIToolbox/detail/HelpViewer.h"

#include <QCoreApplication>
#include <QDesktopServices>
#include <QProcess>
#include <QStandardPaths>
#include <QUrl>

#include <filesystem>
#include <map>

namespace {

namespace fs = std::filesystem;

const char* const kStartPage = "index.html";

// The registered books: the folder of each, with links resolved. Never destroyed.
std::map<std::u16string, fs::path>& books() {
    static auto& folders = *new std::map<std::u16string, fs::path>;
    return folders;
}

/// The page's file, with links resolved. Empty when it isn't inside the book's folder.
fs::path findPage(const fs::path& folder, const fs::path& page) {
    std::error_code error;
    const fs::path file = fs::canonical(folder / page, error);
    if (error || !fs::is_regular_file(file, error))
        return {};
    const fs::path inside = file.lexically_relative(folder);
    return inside.empty() || *inside.begin() == ".." ? fs::path() : file;
}

/// Opens the page in the desktop's browser. The desktop's opener ends with an error when there is
/// none; the page is then shown in a window of our own.
void openPage(const QUrl& page) {
    const QString opener = QStandardPaths::findExecutable(QStringLiteral("xdg-open"));
    if (opener.isEmpty()) {
        if (!QDesktopServices::openUrl(page))
            showHelpPage(page);
        return;
    }
    auto* process = new QProcess(QCoreApplication::instance());
    process->setStandardInputFile(QProcess::nullDevice());
    process->setStandardOutputFile(QProcess::nullDevice());
    process->setStandardErrorFile(QProcess::nullDevice());
    QObject::connect(process, &QProcess::finished, process, [process, page](int status) {
        if (status != 0 || process->exitStatus() != QProcess::NormalExit)
            showHelpPage(page);
        process->deleteLater();
    });
    QObject::connect(process, &QProcess::errorOccurred, process,
                     [process, page](QProcess::ProcessError error) {
                         if (error != QProcess::FailedToStart)
                             return;
                         showHelpPage(page);
                         process->deleteLater();
                     });
    process->start(opener, {page.toString(QUrl::FullyEncoded)});
}

/// The book in the user's language. Empty when there is none.
fs::path localizedBook(const fs::path& book) {
    std::error_code error;
    const fs::path folder = fs::path(localizationFolder()) / book.filename();
    return localizationFolder().empty() || !fs::exists(folder / kStartPage, error)
               ? fs::path()
               : fs::canonical(folder, error);
}

} // namespace

OSStatus AHRegisterHelpBook(const FSRef* bundleRef) {
    const CFRef<CFBundle> bundle = CFBundleCreate(
        CFURLCreateFromFileSystemRepresentation(bundleRef->path.c_str(), true).get());
    if (!bundle)
        return kAHInternalErr;
    const auto text = [&](const char* key) {
        return dynamicCFCast<CFString>(
            CFBundleGetValueForInfoDictionaryKey(bundle.get(), CFSTR(key)));
    };
    const CFString* name = text("CFBundleHelpBookName");
    const CFString* folderName = text("CFBundleHelpBookFolder");
    if (!name || !folderName)
        return kAHInternalErr;

    const CFRef<CFURL> url = CFBundleCopyResourceURL(bundle.get(), folderName, nullptr, nullptr);
    std::error_code error;
    fs::path folder = url ? fs::canonical(url->path(), error) : fs::path();
    if (const fs::path own = localizedBook(folder); !own.empty())
        folder = own;
    if (folder.empty() || findPage(folder, kStartPage).empty())
        return kAHInternalErr;
    books()[name->text()] = folder;
    return noErr;
}

OSStatus AHGotoPage(const CFString* bookName, const CFString* path, const CFString* anchor) {
    const auto book = bookName ? books().find(bookName->text()) : books().end();
    if (book == books().end())
        return kAHInternalErr;
    const fs::path file = findPage(book->second, path ? toUTF8(path) : kStartPage);
    if (file.empty())
        return kAHInternalErr;
    QUrl url = QUrl::fromLocalFile(QString::fromStdString(file.string()));
    if (anchor)
        url.setFragment(QString::fromStdString(toUTF8(anchor)));
    openPage(url);
    return noErr;
}
