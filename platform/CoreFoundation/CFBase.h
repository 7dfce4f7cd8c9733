// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <type_traits>
#include <utility>

// Integer types of the platform, all of fixed width.
using Boolean = unsigned char;
using UInt8 = std::uint8_t;
using SInt8 = std::int8_t;
using UInt16 = std::uint16_t;
using SInt16 = std::int16_t;
using UInt32 = std::uint32_t;
using SInt32 = std::int32_t;
using OSErr = SInt16;
using OSStatus = SInt32;
using OSType = UInt32;
using FourCharCode = UInt32;
using UniChar = char16_t;
using CFIndex = std::ptrdiff_t;
using CFHashCode = std::size_t;

/// `length` places, beginning at `location`.
struct CFRange {
    CFIndex location = 0;
    CFIndex length = 0;
};

constexpr OSErr noErr = 0;
constexpr OSErr paramErr = -50;

/// A four-character code as a number: 'K','r','v','x' is 0x4B727678.
consteval FourCharCode fourCharCode(const char (&text)[5]) {
    FourCharCode code = 0;
    for (int i = 0; i < 4; ++i)
        code = (code << 8) | static_cast<unsigned char>(text[i]);
    return code;
}

/// The concrete type of a CFType, as CFGetTypeID returns it.
enum class CFTypeID : int {
    String,
    Number,
    Bool,
    Data,
    Array,
    Dictionary,
    Carried,
    URL,
    Bundle,
    DataProvider,
    Image,
    Context,
    Icon,
    SharedFileList,
    SharedFileListItem
};

/// The root of all Core Foundation objects: a reference count and a type. A new object has one
/// reference, which its Create function returns as a CFRef. Main thread only: the count isn't
/// atomic.
class CFType {
public:
    CFType(const CFType&) = delete;
    CFType& operator=(const CFType&) = delete;

    virtual CFTypeID typeID() const = 0;

    /// Whether `other`, of the same type, has the same value. Objects without a value equal only
    /// themselves.
    virtual bool isEqual(const CFType& other) const { return this == &other; }

    virtual CFHashCode hash() const { return std::hash<const CFType*>()(this); }

protected:
    CFType() = default;
    virtual ~CFType() = default;

private:
    template <class T>
    friend class CFRef;

    void retain() const { ++count_; }

    void release() const {
        if (--count_ == 0)
            delete this;
    }

    mutable long count_ = 1;
};

/// An owning reference to a Core Foundation object, or null. Copying retains, destroying releases.
/// Nothing else touches reference counts.
template <class T>
class CFRef {
public:
    CFRef() = default;

    CFRef(std::nullptr_t) {}

    CFRef(const CFRef& other) : CFRef(retain(other.object_)) {}

    CFRef(CFRef&& other) noexcept : object_(std::exchange(other.object_, nullptr)) {}

    template <class U, class = std::enable_if_t<std::is_convertible_v<U*, T*>>>
    CFRef(CFRef<U> other) : object_(other.leak()) {}

    ~CFRef() {
        if (object_)
            object_->release();
    }

    CFRef& operator=(CFRef other) noexcept {
        std::swap(object_, other.object_);
        return *this;
    }

    /// Takes over the reference of a new object.
    static CFRef adopt(T* object) {
        CFRef ref;
        ref.object_ = object;
        return ref;
    }

    /// Adds a reference to a borrowed object, which may be null.
    static CFRef retain(T* object) {
        if (object)
            object->retain();
        return adopt(object);
    }

    T* get() const { return object_; }

    T* operator->() const { return object_; }

    T& operator*() const { return *object_; }

    explicit operator bool() const { return object_ != nullptr; }

    /// Gives up the reference without releasing it.
    [[nodiscard]] T* leak() { return std::exchange(object_, nullptr); }

private:
    T* object_ = nullptr;
};

CFTypeID CFGetTypeID(const CFType* object);
/// Whether both are null, or have the same type and value.
bool CFEqual(const CFType* a, const CFType* b);
CFHashCode CFHash(const CFType* object);

/// The object as a T. Null when it is null or of another type. For values from outside.
template <class T>
const T* dynamicCFCast(const CFType* object) {
    return dynamic_cast<const T*>(object);
}
