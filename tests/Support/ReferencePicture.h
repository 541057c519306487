#pragma once

#include <QImage>
#include <QString>

#include <gtest/gtest.h>

namespace kestrowind {

/// Whether a picture looks like the one that is kept of it: "Dashboard/charts" is
/// tests/UI/Dashboard/pictures/charts.png. What the eye cannot see does not count. A failure leaves
/// the picture and its difference below the build's folder "pictures" and says so. With
/// KESTROWIND_RECORD_PICTURES set in the environment it is kept as the new one, and the test fails
/// all the same: nobody looked at it yet.
[[nodiscard]] testing::AssertionResult looksLike(const QString& name, const QImage& picture);

/// Makes texts look the same whatever the user of the machine prefers. To be called before the
/// application is made.
void useReferenceFonts();

/// From left to right, as high as the highest.
[[nodiscard]] QImage sideBySide(const QList<QImage>& pictures);

} // namespace kestrowind
