// SPDX-License-Identifier: MIT
#include "platform/Security/Authorization.h"

#include <algorithm>
#include <span>
#include <string_view>

struct AuthorizationOpaqueRef {};

OSStatus AuthorizationCreate(const AuthorizationRights*, const AuthorizationEnvironment*,
                             AuthorizationFlags, AuthorizationRef* authorization) {
    *authorization = new AuthorizationOpaqueRef;
    return errAuthorizationSuccess;
}

OSStatus AuthorizationCopyRights(AuthorizationRef authorization, const AuthorizationRights* rights,
                                 const AuthorizationEnvironment*, AuthorizationFlags,
                                 AuthorizationRights**) {
    if (!authorization)
        return errAuthorizationInvalidRef;
    const std::span<const AuthorizationItem> items(rights->items, rights->count);
    const bool granted =
        std::all_of(items.begin(), items.end(), [](const AuthorizationItem& right) {
            return std::string_view(right.name) == "system.global-login-items.";
        });
    return granted ? errAuthorizationSuccess : errAuthorizationDenied;
}

OSStatus AuthorizationFree(AuthorizationRef authorization, AuthorizationFlags) {
    delete authorization;
    return errAuthorizationSuccess;
}
