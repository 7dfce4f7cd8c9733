#include "tests/src/login/FakeSystem.h"

#include "platform/CoreServices/Gestalt.h"
#include "platform/Security/Authorization.h"

#include <algorithm>
#include <cstring>
#include <pwd.h>
#include <sys/types.h>
#include <unistd.h>

FakeSystem fakeSystem;

struct AuthorizationOpaqueRef {};

OSErr Gestalt(OSType selector, SInt32* response) {
    ++fakeSystem.versionsAsked;
    if (selector != gestaltSystemVersion || !fakeSystem.version)
        return gestaltUndefSelectorErr;
    *response = *fakeSystem.version;
    return noErr;
}

OSStatus AuthorizationCreate(const AuthorizationRights*, const AuthorizationEnvironment*,
                             AuthorizationFlags, AuthorizationRef* authorization) {
    static const AuthorizationOpaqueRef only;
    if (!fakeSystem.makesAuthorizations)
        return errAuthorizationDenied;
    ++fakeSystem.authorizations;
    *authorization = &only;
    return errAuthorizationSuccess;
}

OSStatus AuthorizationCopyRights(AuthorizationRef, const AuthorizationRights* rights,
                                 const AuthorizationEnvironment*, AuthorizationFlags flags,
                                 AuthorizationRights**) {
    ++fakeSystem.rightsAsked;
    const bool isTheRight = rights->count == 1 && flags == 3 &&
                            std::strcmp(rights->items->name, "system.global-login-items.") == 0;
    return isTheRight && fakeSystem.grantsRight ? errAuthorizationSuccess : errAuthorizationDenied;
}

OSStatus AuthorizationFree(AuthorizationRef, AuthorizationFlags) {
    --fakeSystem.authorizations;
    return errAuthorizationSuccess;
}

extern "C" passwd* getpwuid(uid_t user) {
    static char name[] = "somebody";
    static passwd entry{};
    entry = {name, name, user, 4711, name, name, name};
    return fakeSystem.knowsUser ? &entry : nullptr;
}

extern "C" passwd* getpwnam(const char*) {
    return getpwuid(getuid());
}

extern "C" int getgrouplist(const char*, gid_t, gid_t* groups, int* count) {
    if (!fakeSystem.groups || std::ssize(*fakeSystem.groups) > *count)
        return -1;
    std::copy(fakeSystem.groups->begin(), fakeSystem.groups->end(), groups);
    return *count = static_cast<int>(fakeSystem.groups->size());
}
