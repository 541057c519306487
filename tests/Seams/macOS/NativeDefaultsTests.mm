#include "Platform/macOS/NativeDefaults.h"

#import <Foundation/Foundation.h>

#include <gtest/gtest.h>

namespace kestrowind {
namespace {

using namespace Qt::StringLiterals;

TEST(NativeDefaults, AreWhereTheSystemLooksForThem) {
    const auto settings = openNativeDefaults(u"com.kestrowind-tests.domain"_s);
    settings->setValue(u"text"_s, u"Zürich"_s);
    settings->sync();
    NSUserDefaults* system =
        [[NSUserDefaults alloc] initWithSuiteName:@"com.kestrowind-tests.domain"];
    EXPECT_EQ(QString::fromNSString([system stringForKey:@"text"]), u"Zürich"_s);
    settings->clear();
}

} // namespace
} // namespace kestrowind
