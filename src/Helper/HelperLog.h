#pragma once

#include <string_view>

/// What the helper says of itself, for whoever looks after a machine: on a Mac the system's log,
/// elsewhere standard error. May be called from any thread.
namespace kestrowind::HelperLog {

/// What happened in the ordinary course of things.
void note(std::string_view what);
/// What should not have happened.
void fault(std::string_view what);

} // namespace kestrowind::HelperLog
