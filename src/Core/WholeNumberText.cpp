#include "Core/WholeNumberText.h"

#include <QLocale>

#include <algorithm>
#include <cmath>

namespace kestrowind::WholeNumberText {
namespace {

using namespace Qt::StringLiterals;

/// Whole numbers are exact up to here; nothing that is measured comes near.
constexpr double greatest = 1e15;

QString digits(double whole) {
    if (!std::isfinite(whole))
        return unknown();
    // The sum makes a positive zero of a negative one.
    return QLocale().toString(std::clamp(whole, -greatest, greatest) + 0.0, 'f', 0);
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
