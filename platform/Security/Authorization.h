// SPDX-License-Identifier: MIT
#pragma once

#include "platform/CoreFoundation/CFBase.h"

#include <cstddef>

// Authorization Services: a program asks for a right before it changes what belongs to all users.
// Here file permissions decide. So the right below is granted without asking anybody.

constexpr OSStatus errAuthorizationSuccess = 0;
constexpr OSStatus errAuthorizationInvalidRef = -60002;
constexpr OSStatus errAuthorizationDenied = -60005;

using AuthorizationFlags = UInt32;

enum : AuthorizationFlags {
    kAuthorizationFlagDefaults = 0,
    kAuthorizationFlagInteractionAllowed = 1,
    kAuthorizationFlagExtendRights = 2,
};

/// A right. The only one granted is "system.global-login-items.": changing the applications that
/// are opened at login.
struct AuthorizationItem {
    const char* name;
    std::size_t valueLength;
    void* value;
    UInt32 flags;
};

struct AuthorizationRights {
    UInt32 count;
    AuthorizationItem* items;
};

using AuthorizationEnvironment = AuthorizationRights;
using AuthorizationRef = const struct AuthorizationOpaqueRef*;

/// `rights` and `environment` must be null. `*authorization` must be freed.
OSStatus AuthorizationCreate(const AuthorizationRights* rights,
                             const AuthorizationEnvironment* environment, AuthorizationFlags flags,
                             AuthorizationRef* authorization);

/// Success when all rights are granted. `authorizedRights` must be null.
OSStatus AuthorizationCopyRights(AuthorizationRef authorization, const AuthorizationRights* rights,
                                 const AuthorizationEnvironment* environment,
                                 AuthorizationFlags flags, AuthorizationRights** authorizedRights);

OSStatus AuthorizationFree(AuthorizationRef authorization, AuthorizationFlags flags);
