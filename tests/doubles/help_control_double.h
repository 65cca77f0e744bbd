// A help control that shows nothing and notes what it is sent.
#pragma once

#include "doubles/in_force.h"
#include "platform/help_control.h"

#include <string>
#include <vector>

namespace qx::test {

struct HelpControlDouble : InForce<HelpControlDouble> {
    HWND window = reinterpret_cast<HWND>(0x77);  // what it answers; null: nothing can be shown
    std::vector<std::string> sent;               // "command target", in order
    std::vector<HWND> owners;
};

}  // namespace qx::test

namespace qx::platform {

HWND SendHelp(HWND owner, const char* target, HelpCommand command, unsigned contextId)
{
    auto& control = test::HelpControlDouble::Current();
    const std::string file = target ? target : "(none)";
    control.owners.push_back(owner);
    switch (command) {
        case HelpCommand::Topic:
            control.sent.push_back("topic " + file);
            break;
        case HelpCommand::Contents:
            control.sent.push_back("contents " + file);
            break;
        case HelpCommand::Context:
            control.sent.push_back("context " + std::to_string(contextId) + " " + file);
            break;
        case HelpCommand::CloseAll:
            control.sent.push_back("close all " + file);
    }
    return control.window;
}

HWND SendHelpSearch(HWND owner, const char* target, const char* query)
{
    auto& control = test::HelpControlDouble::Current();
    control.owners.push_back(owner);
    control.sent.push_back("search '" + std::string(query) + "' " + target);
    return control.window;
}

}  // namespace qx::platform
