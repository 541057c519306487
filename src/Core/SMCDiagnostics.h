#pragma once

#include "Shared/SMCKit/SMCConnection.h"

#include <functional>
#include <string>

namespace kestrowind {

class SystemInformation;

/// The plain-text report of what can be seen in the SMC, for people to send in. It is English,
/// opens an SMC connection of its own, and turns every failure into a line of text.
namespace SMCDiagnostics {

/// One line of the report, without its end of line; UTF-8.
using WriteLine = std::function<void(const std::string& line)>;

/// Writes the whole report. Takes as long as one walk of the key directory and one discovery.
void dump(const SystemInformation& information, const std::shared_ptr<SMCUserClient>& userClient,
          const WriteLine& writeLine);

/// Type, size, bytes and, where it can be decoded, the value of a key that exists.
[[nodiscard]] std::string describeValue(SMCConnection& smc, std::string_view key);

/// The shortest decimal form that reads back as the same number, always with a fractional part.
[[nodiscard]] std::string decimalText(double value);
[[nodiscard]] std::string decimalText(float value);

} // namespace SMCDiagnostics

} // namespace kestrowind
