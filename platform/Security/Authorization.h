// SPDX-License-Identifier: MIT
#pragma once

#include "platform/CoreFoundation/CFBase.h"

#include <cstddef>

// Authorization Services: what a program asks for before it changes what belongs to all users. Here
// the file system decides what may be changed, so that the rights below are granted without asking
// anybody.

constexpr OSStatus errAuthorizationSuccess = 0;
constexpr OSStatus errAuthorizationInvalidRef = -60002;
constexpr OSStatus errAuthorizationDenied = -60005;

using AuthorizationFlags = UInt32;

enum : AuthorizationFlags {
    kAuthorizationFlagDefaults = 0,
    kAuthorizationFlagInteractionAllowed = 1,
    kAuthorizationFlagExtendRights = 2,
};

/// A right: "system.global-login-items.", to change the applications opened at login. All others
/// are denied.
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

/// `rights` and `environment` are null; `*authorization` is to be freed.
OSStatus AuthorizationCreate(const AuthorizationRights* rights,
                             const AuthorizationEnvironment* environment, AuthorizationFlags flags,
                             AuthorizationRef* authorization);

/// Success when all the rights are granted. `authorizedRights` is null.
OSStatus AuthorizationCopyRights(AuthorizationRef authorization, const AuthorizationRights* rights,
                                 const AuthorizationEnvironment* environment,
                                 AuthorizationFlags flags, AuthorizationRights** authorizedRights);

OSStatus AuthorizationFree(AuthorizationRef authorization, AuthorizationFlags flags);
