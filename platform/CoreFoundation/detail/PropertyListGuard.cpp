#include "platform/CoreFoundation/detail/PropertyListGuard.h"

#include "platform/CoreFoundation/CFPropertyList.h"
#include "platform/CoreFoundation/detail/PropertyListGuardForms.h"

CFPropertyListForm CFPropertyListCheck(std::string_view& bytes) {
    if (bytes.size() > kCFPropertyListMaxSize)
        return CFPropertyListForm::Invalid;
    if (bytes.starts_with("bplist"))
        return isSoundBinaryPropertyList(bytes) ? CFPropertyListForm::Binary
                                                : CFPropertyListForm::Invalid;
    if (bytes.starts_with("\xEF\xBB\xBF"))
        bytes.remove_prefix(3);
    return isSoundXMLPropertyList(bytes) ? CFPropertyListForm::XML : CFPropertyListForm::Invalid;
}
