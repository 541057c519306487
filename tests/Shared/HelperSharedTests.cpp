#include "Shared/HelperShared/FanTargets.h"
#include "Shared/HelperShared/HelperSafetyFloor.h"
#include "Shared/HelperShared/HelperStatus.h"

#include <gmock/gmock.h>

#include <limits>
#include <map>

namespace kestrowind {
namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double nan = std::numeric_limits<double>::quiet_NaN();

/// A complete status document with one member replaced, added or, for no value, left out.
std::string documentWith(std::string_view key, std::string_view value) {
    std::map<std::string, std::string> members{
        {"version", R"("1.0.2")"},  {"phase", R"("controlling")"},  {"autoFloors", "[0, 1200.5]"},
        {"effectiveTargets", "[]"}, {"hottestSensorCelsius", "61"}, {"lastError", R"("jammed")"}};
    members[std::string(key)] = value;
    std::string document;
    for (const auto& [name, json] : members)
        document += json.empty() ? "" : ",\"" + name + "\":" + json;
    return "{" + document.substr(1) + "}";
}

TEST(HelperStatus, ComesBackFromItsDocumentUnchangedWhateverElseIsInIt) {
    HelperStatus expected{"1.0.2", HelperControlPhase::controlling, {0, 1200.5}, {}, 61, "jammed"};
    EXPECT_EQ(decodeHelperStatus(documentWith("later", R"({"a": [true]})")), expected);
    expected.lastError.reset();
    EXPECT_EQ(decodeHelperStatus(documentWith("lastError", "null")), expected);
    EXPECT_EQ(decodeHelperStatus(documentWith("lastError", "")), expected);
    EXPECT_EQ(encodeHelperStatus(expected).find("lastError"), std::string::npos);
    expected.lastError = "\"Lüfter\"\n klemmt: broken \xFF text";
    const auto decoded = decodeHelperStatus(encodeHelperStatus(expected));
    expected.lastError = "\"Lüfter\"\n klemmt: broken \uFFFD text";
    EXPECT_EQ(decoded, expected);
}

TEST(HelperStatus, OneMemberThatIsMissingOrWrongFailsTheWhole) {
    const std::pair<const char*, std::vector<const char*>> wrongValues[] = {
        {"version", {"", "null", "1", "\"\xFF\""}},
        {"phase", {"", "1", R"("paused")", R"("Idle")", R"("idle\u0000")"}},
        {"autoFloors", {"", "null", "1", "[true]", R"(["1"])", "[[1]]", "[1e999]"}},
        {"effectiveTargets", {"", "null", "{}", "[false]", "[1, -1e999]"}},
        {"hottestSensorCelsius", {"", "null", "true", R"("61")", "1e999", "NaN"}},
        {"lastError", {"1", R"(["jammed"])", "\"\xC3\x28\""}},
    };
    for (const auto& [key, values] : wrongValues) {
        for (const std::string_view value : values)
            EXPECT_EQ(decodeHelperStatus(documentWith(key, value)), std::nullopt)
                << key << ": " << value;
    }
    for (const std::string_view document : {"", "[]", "{"})
        EXPECT_EQ(decodeHelperStatus(document), std::nullopt) << document;
    const std::string whole = documentWith("phase", R"("idle")");
    EXPECT_EQ(decodeHelperStatus(whole + "}"), std::nullopt);
    EXPECT_EQ(decodeHelperStatus(whole + '\0' + "}"), std::nullopt);
    EXPECT_TRUE(decodeHelperStatus(whole + std::string(largestHelperStatus - whole.size(), ' ')));
    EXPECT_FALSE(decodeHelperStatus(whole + std::string(largestHelperStatus, ' ')));
}

TEST(HelperSafetyFloor, RisesInPiecesAndTakesNotANumberForTheWorst) {
    const std::pair<double, double> points[] = {
        {-infinity, 0}, {59.9, 0},  {60, 0},   {67.5, 12.5}, {75, 25},        {80, 47.5},
        {85, 70},       {87.5, 85}, {90, 100}, {120, 100},   {infinity, 100}, {nan, 100}};
    for (const auto& [celsius, percent] : points)
        EXPECT_DOUBLE_EQ(HelperSafetyFloor::floorPercent(celsius), percent) << celsius;
}

TEST(FanTargets, AreRefusedWithTheFanAndTheReason) {
    const std::tuple<std::vector<double>, std::size_t, const char*> rows[] = {
        {{}, 0, ""},
        {{0, highestPlausibleRPM}, 2, ""},
        {{1200}, 2, "1 targets for 2 fans"},
        {{1200, 1200}, 1, "2 targets for 1 fans"},
        {{1200, nan}, 2, "the speed of fan 1 is not a finite number"},
        {{infinity, -1}, 2, "the speed of fan 0 is not a finite number"},
        {{-0.5}, 1, "the speed of fan 0 is negative"},
        {{0, 0, 100'000.5}, 3, "the speed of fan 2 is implausibly high"},
    };
    for (const auto& [targets, fans, fault] : rows) {
        const auto checked = checkFanTargets(targets, fans);
        EXPECT_EQ(checked ? "" : checked.error(), fault);
    }
}

} // namespace
} // namespace kestrowind
