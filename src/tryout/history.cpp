// SPDX-License-Identifier: MIT
#include "src/tryout/history.h"

#include "platform/CoreFoundation/CFURLAccess.h"
#include "platform/CoreServices/Folders.h"
#include "src/files/fsutil.h"

namespace tryout {

namespace {

/// Null when the folder can't be made.
CFRef<CFURL> fileIn(OSType folderType, const std::string& name) {
    FSRef folder;
    if (FSFindFolder(kUserDomain, folderType, true, &folder) != noErr)
        return nullptr;
    return CFURLCreateFromFileSystemRepresentation((folder.path + '/' + name).c_str(), false);
}

CFRef<CFData> dataOf(const std::string& text) {
    return CFDataCreate(reinterpret_cast<const UInt8*>(text.data()), std::ssize(text));
}

} // namespace

History::History() : file_(fileIn(kApplicationSupportFolderType, "korvex/tries.csv")) {
    FSRef ref;
    if (!file_ || !CFURLGetFSRef(file_.get(), &ref))
        return;
    const auto data = fsGetFileContents(file_.get());
    if (!data) {
        state_ = State::Unreadable;
        return;
    }
    const auto bytes = data->bytes();
    auto tries = triesOf({reinterpret_cast<const char*>(bytes.data()), bytes.size()});
    if (tries)
        tries_ = std::move(*tries);
    else
        state_ = State::Damaged;
}

bool History::add(PastTry past) {
    tries_.push_back(std::move(past));
    if (tries_.size() > kMostTries)
        tries_.erase(tries_.begin());
    return store();
}

bool History::store() {
    if (!file_ || state_ == State::Unreadable)
        return false;
    if (state_ == State::Damaged && !keepFileAside(file_.get()))
        return false;
    state_ = State::Sound;
    return CFURLWriteDataAndPropertiesToResource(file_.get(), dataOf(csvOf(tries_)).get(), nullptr);
}

bool History::clear() {
    if (!file_ || !CFURLDestroyResource(file_.get(), nullptr))
        return false;
    tries_.clear();
    state_ = State::Sound;
    return true;
}

std::string History::exportCopy() const {
    const std::string name = "Korvex tries " + dateNow().substr(0, 10) + ".csv";
    const auto copy = fileIn(kDocumentsFolderType, name);
    if (!copy ||
        !CFURLWriteDataAndPropertiesToResource(copy.get(), dataOf(csvOf(tries_)).get(), nullptr))
        return {};
    return copy->path();
}

} // namespace tryout
