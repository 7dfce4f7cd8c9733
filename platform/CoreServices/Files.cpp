#include "platform/CoreServices/Files.h"

#include <sys/stat.h>

bool CFURLGetFSRef(const CFURL* url, FSRef* ref) {
    struct stat status {};

    if (!url || !ref || stat(url->path().c_str(), &status) != 0)
        return false;
    ref->path = url->path();
    return true;
}
