#include "platform/CoreFoundation/CFPropertyList.h"
#include "platform/CoreFoundation/detail/PropertyListGuardForms.h"
#include "platform/CoreFoundation/detail/TextEncoding.h"

#include <algorithm>
#include <array>
#include <charconv>

namespace {

bool isBlank(char c) {
    return c == ' ' || c == '\t' || c == '\r' || c == '\n';
}

bool isXMLText(std::string_view bytes) {
    for (;;) {
        const auto plain = [](unsigned char c) { return c >= 0x20 && c < 0x80; };
        const auto special = std::find_if_not(bytes.begin(), bytes.end(), [&](char c) {
            return plain(static_cast<unsigned char>(c)) || isBlank(c);
        });
        bytes.remove_prefix(static_cast<std::size_t>(special - bytes.begin()));
        if (bytes.empty())
            return true;
        if (!isXMLCharacter(takeUTF8(bytes)))
            return false;
    }
}

bool isNameCharacter(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

std::string_view trimmed(std::string_view text) {
    while (!text.empty() && isBlank(text.front()))
        text.remove_prefix(1);
    while (!text.empty() && isBlank(text.back()))
        text.remove_suffix(1);
    return text;
}

template <class Value, class... Form>
bool isWholly(std::string_view text, Value& value, Form... form) {
    const auto [end, error] =
        std::from_chars(text.data(), text.data() + text.size(), value, form...);
    return error == std::errc() && end == text.data() + text.size();
}

// What may stand in each kind of element.

bool isInteger(std::string_view text) {
    text = trimmed(text);
    std::int64_t value = 0;
    if (text.starts_with('+'))
        text.remove_prefix(1);
    const bool negative = text.starts_with('-');
    const std::string_view digits = text.substr(negative ? 1 : 0);
    if (digits.starts_with("0x") || digits.starts_with("0X"))
        return isWholly(digits.substr(2), value, 16) && value >= 0;
    return !digits.starts_with('-') && isWholly(text, value, 10);
}

bool isReal(std::string_view text) {
    text = trimmed(text);
    double value = 0;
    if (text.starts_with('+') && !text.starts_with("+-"))
        text.remove_prefix(1);
    return isWholly(text, value);
}

bool isDate(std::string_view text) {
    constexpr std::string_view form = "dddd-dd-ddTdd:dd:ddZ";
    text = trimmed(text);
    const bool matches =
        std::equal(text.begin(), text.end(), form.begin(), form.end(), [](char c, char wanted) {
            return wanted == 'd' ? c >= '0' && c <= '9' : c == wanted;
        });
    int year = 0;
    return matches && isWholly(text.substr(0, 4), year) && year >= kFirstDateYear &&
           year <= kLastDateYear;
}

bool isBase64(std::string_view text) {
    std::size_t digits = 0;
    std::size_t padding = 0;
    for (const char c : text) {
        if (isBlank(c))
            continue;
        const bool digit = (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') ||
                           (c >= '0' && c <= '9') || c == '+' || c == '/';
        if (c == '=')
            ++padding;
        else if (digit && padding == 0)
            ++digits;
        else
            return false;
    }
    return padding <= 2 && (digits + padding) % 4 == 0;
}

bool isEmpty(std::string_view text) {
    return trimmed(text).empty();
}

struct LeafElement {
    std::string_view name;
    bool (*accepts)(std::string_view content); ///< null: any text
};

constexpr LeafElement kLeafElements[] = {
    {"string", nullptr}, {"key", nullptr},   {"integer", isInteger}, {"real", isReal},
    {"true", isEmpty},   {"false", isEmpty}, {"date", isDate},       {"data", isBase64},
};

/// Whether the text in front of a ";" names a character that XML can hold.
bool isEntity(std::string_view name) {
    constexpr std::string_view named[] = {"lt", "gt", "amp", "quot", "apos"};
    if (!name.starts_with('#'))
        return std::find(std::begin(named), std::end(named), name) != std::end(named);
    std::uint32_t c = 0;
    const bool hexadecimal = name.starts_with("#x");
    return isWholly(name.substr(hexadecimal ? 2 : 1), c, hexadecimal ? 16 : 10) &&
           isXMLCharacter(c);
}

bool areEntitiesSound(std::string_view text) {
    for (std::size_t at = text.find('&'); at != std::string_view::npos; at = text.find('&', at)) {
        const std::size_t end = text.find(';', at);
        if (end == std::string_view::npos || !isEntity(text.substr(at + 1, end - at - 1)))
            return false;
        at = end;
    }
    return true;
}

struct Tag {
    std::string_view name;
    bool closes;
    bool isWhole; ///< <name/>
};

/// Walks the elements once, with a stack of the open containers.
class XMLGuard {
public:
    explicit XMLGuard(std::string_view document) : rest_(document) {}

    bool check() {
        Tag tag{};
        if (!skipProlog() || !takeTag(tag) || tag.name != "plist" || tag.closes || tag.isWhole)
            return false;
        push(Container::Document);
        while (depth_ > 0) {
            if (!skipComments() || !takeTag(tag) || !follow(tag))
                return false;
        }
        return skipComments() && rest_.empty();
    }

private:
    enum class Container { Document, Array, Dictionary };

    struct Open {
        Container container;
        bool wantsValue; ///< the document has none yet; a dictionary's key has none yet
    };

    void push(Container container) {
        stack_[depth_++] = {container, container != Container::Dictionary};
    }

    void skipBlanks() {
        while (!rest_.empty() && isBlank(rest_.front()))
            rest_.remove_prefix(1);
    }

    /// Takes `start`, anything, and `end` off the front. What could be read as ending within
    /// `start` itself, as in "<!-->", is refused.
    bool skipPast(std::string_view start, std::string_view end) {
        const std::size_t at = rest_.find(end, start.size());
        const std::size_t early = rest_.find(end, 1);
        if (at == std::string_view::npos || early != at)
            return false;
        rest_.remove_prefix(at + end.size());
        return true;
    }

    bool skipComments() {
        for (skipBlanks(); rest_.starts_with("<!--"); skipBlanks()) {
            if (!skipPast("<!--", "-->"))
                return false;
        }
        return true;
    }

    bool skipDocumentType() {
        const std::size_t end = rest_.find('>');
        if (end == std::string_view::npos ||
            rest_.substr(1, end - 1).find_first_of("[<") != std::string_view::npos)
            return false;
        rest_.remove_prefix(end + 1);
        return true;
    }

    bool skipProlog() {
        while (skipComments()) {
            if (rest_.starts_with("<?")) {
                if (!skipPast("<?", "?>"))
                    return false;
            } else if (rest_.starts_with("<!DOCTYPE")) {
                if (!skipDocumentType())
                    return false;
            } else {
                return true;
            }
        }
        return false;
    }

    /// Attributes are for <plist> alone.
    bool takeTag(Tag& tag) {
        const std::size_t end = rest_.find('>');
        if (!rest_.starts_with('<') || end == std::string_view::npos)
            return false;
        std::string_view body = rest_.substr(1, end - 1);
        rest_.remove_prefix(end + 1);
        tag.closes = body.starts_with('/');
        tag.isWhole = body.ends_with('/');
        if (tag.closes)
            body.remove_prefix(1);
        else if (tag.isWhole)
            body.remove_suffix(1);
        const auto nameEnd = std::find_if_not(body.begin(), body.end(), isNameCharacter);
        const auto length = static_cast<std::size_t>(nameEnd - body.begin());
        tag.name = body.substr(0, length);
        const std::string_view attributes = trimmed(body.substr(length));
        const bool separated = length == body.size() || isBlank(body[length]);
        return separated && (attributes.empty() || (tag.name == "plist" && !tag.closes &&
                                                    attributes.find('<') == attributes.npos));
    }

    bool follow(const Tag& tag) {
        if (tag.closes)
            return closeContainer(tag.name);
        if (tag.name == "key")
            return takeKey(tag);
        return acceptValue() && takeValue(tag);
    }

    bool closeContainer(std::string_view name) {
        constexpr std::string_view names[] = {"plist", "array", "dict"};
        const Open& top = stack_[--depth_];
        const bool complete = top.container == Container::Array || !top.wantsValue;
        return complete && name == names[static_cast<std::size_t>(top.container)];
    }

    bool takeKey(const Tag& tag) {
        Open& top = stack_[depth_ - 1];
        if (top.container != Container::Dictionary || top.wantsValue || tag.isWhole)
            return false;
        top.wantsValue = true;
        return takeContent(tag);
    }

    bool acceptValue() {
        Open& top = stack_[depth_ - 1];
        if (!top.wantsValue)
            return false;
        top.wantsValue = top.container == Container::Array;
        return true;
    }

    bool takeValue(const Tag& tag) {
        if (tag.name != "array" && tag.name != "dict")
            return takeContent(tag);
        if (depth_ > kCFPropertyListMaxDepth)
            return false;
        if (!tag.isWhole)
            push(tag.name == "array" ? Container::Array : Container::Dictionary);
        return true;
    }

    bool takeContent(const Tag& tag) {
        const auto* element = std::find_if(std::begin(kLeafElements), std::end(kLeafElements),
                                           [&](const auto& leaf) { return leaf.name == tag.name; });
        if (element == std::end(kLeafElements))
            return false;
        if (tag.isWhole)
            return !element->accepts || element->accepts({});
        return element->accepts ? takePlainContent(*element) : takeText(tag.name);
    }

    bool takePlainContent(const LeafElement& element) {
        const std::size_t end = std::min(rest_.find('<'), rest_.size());
        const std::string_view content = rest_.substr(0, end);
        rest_.remove_prefix(end);
        return element.accepts(content) && takeEnd(element.name);
    }

    /// Text with entities, comments and CDATA sections in it.
    bool takeText(std::string_view name) {
        for (;;) {
            const std::size_t end = rest_.find('<');
            if (end == std::string_view::npos || !areEntitiesSound(rest_.substr(0, end)))
                return false;
            rest_.remove_prefix(end);
            if (rest_.starts_with("<!--")) {
                if (!skipPast("<!--", "-->"))
                    return false;
            } else if (rest_.starts_with("<![CDATA[")) {
                if (!skipPast("<![CDATA[", "]]>"))
                    return false;
            } else {
                return takeEnd(name);
            }
        }
    }

    bool takeEnd(std::string_view name) {
        Tag tag{};
        return takeTag(tag) && tag.closes && tag.name == name;
    }

    std::string_view rest_;
    std::array<Open, kCFPropertyListMaxDepth + 1> stack_{};
    std::size_t depth_ = 0; ///< how many are open
};

} // namespace

bool isSoundXMLPropertyList(std::string_view bytes) {
    return isXMLText(bytes) && XMLGuard(bytes).check();
}
