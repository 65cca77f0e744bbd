// Notes what would be opened. Windows only.
#pragma once

#include "doubles/in_force.h"
#include "platform/open_document.h"

#include <functional>
#include <string>
#include <vector>

namespace qx::test {

struct OpenDocumentDouble : InForce<OpenDocumentDouble> {
    std::vector<std::string> opened;  // file + "|" + arguments, in order
    std::function<void()> meanwhile = [] {};
};

}  // namespace qx::test

namespace qx::platform {

void OpenDocument(HWND, const char* file, const char* arguments)
{
    auto& document = test::OpenDocumentDouble::Current();
    document.opened.push_back(std::string(file) + "|" + arguments);
    document.meanwhile();
}

}  // namespace qx::platform
