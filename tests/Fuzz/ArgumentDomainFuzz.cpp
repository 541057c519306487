#include "Fuzz/Require.h"
#include "Platform/UserDefaults.h"

#include <QSettings>

#include <cmath>
#include <cstdint>

using namespace kestrowind;

/// Launch arguments, one a line: every key can be asked for as every type.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QString text =
        QString::fromUtf8(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    const QStringList arguments = text.split(QLatin1Char('\n'));
    const auto pairs = UserDefaults::parseArguments(arguments);
    KESTROWIND_REQUIRE(2 * pairs.size() <= arguments.size());
    const UserDefaults defaults(arguments, [] {
        return std::make_unique<QSettings>(QStringLiteral("/dev/null"), QSettings::IniFormat);
    });
    for (const QString& key : pairs.keys()) {
        KESTROWIND_REQUIRE(!key.isEmpty());
        KESTROWIND_REQUIRE(defaults.string(key) || defaults.stringArray(key));
        (void)defaults.boolean(key);
        KESTROWIND_REQUIRE(!std::isnan(defaults.number(key)));
    }
    return 0;
}
