#include "Helper/HelperLog.h"

#include <cstdio>
#include <string>

namespace kestrowind::HelperLog {
namespace {

void write(std::string_view kind, std::string_view what) {
    std::string line = "kestrowind helper: ";
    line.append(kind).append(what).append("\n");
    std::fputs(line.c_str(), stderr);
}

} // namespace

void note(std::string_view what) {
    write("", what);
}

void fault(std::string_view what) {
    write("fault: ", what);
}

} // namespace kestrowind::HelperLog
