#include "UI/MenuBar/WholeNumberText.h"

#include <cmath>

namespace kestrowind::WholeNumberText {
namespace {

using namespace Qt::StringLiterals;

QString digits(double whole) {
    // The sum makes a positive zero of a negative one.
    return std::isfinite(whole) ? QString::number(whole + 0.0, 'f', 0) : unknown();
}

} // namespace

QString truncated(double value) {
    return digits(std::trunc(value));
}

QString rounded(double value) {
    return digits(std::round(value));
}

QString unknown() {
    return u"--"_s;
}

} // namespace kestrowind::WholeNumberText
