#include "Core/SMCDiagnostics.h"
#include "Simulator/SimulatedSMC.h"
#include "Support/FakeSystemInformation.h"

#include <gmock/gmock.h>

#include <bit>

namespace kestrowind {
namespace {

using namespace Qt::StringLiterals;
using testing::EndsWith;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

std::string dump(const std::shared_ptr<SimulatedSMC>& smc) {
    FakeSystemInformation machine;
    machine.sysctlTexts = {{"hw.model", u"Mac1,1"_s}};
    machine.bundleTexts = {{u"CFBundleShortVersionString"_s, u"0.1"_s}};
    std::string report;
    SMCDiagnostics::dump(machine, smc, [&](const std::string& line) {
        report += line + "\n";
        if (line.starts_with("GPU sensors"))
            smc->setFault("#KEY", std::nullopt);
    });
    return report;
}

const std::string header = R"(Kestrowind SMC diagnostic dump
=============================
app version   : 0.1 (?), helper code 1.0.2
hardware model: Mac1,1
cpu           : unknown
macOS         : Version 15.5 (Build 24F74)

)";

TEST(SMCDiagnostics, ReportsAWholeMachine) {
    const auto smc = std::make_shared<SimulatedSMC>();
    smc->setByte("FNum", 1);
    for (const char* key : {"F0Ac", "F0Tg"})
        smc->setFloat(key, 1800);
    smc->setFloat("F0Mn", 1350.5F);
    smc->setKey("F0Mx", "fpe2", {0x17, 0x0c});
    smc->setByte("F0Md", 2);
    smc->setByte("F0Sf", 7, "hex_");
    smc->setFault("F0Ac", SimulatedSMC::Fault::fails);
    smc->setFloat("Tp01", 45.5F);
    smc->setFloat("Te02", 44.5F);
    smc->setKey("TB0T", "ioft", {1, 2});
    const std::string report = dump(smc);
    EXPECT_THAT(report, StartsWith(header + "SMC connection: OK\n"));
    for (const char* part : {
             "  fan 0:\n"
             "    F0Ac  absent\n"
             "    F0Tg  type=flt  size=4 bytes=[00 00 e1 44] = 1800.0\n"
             "    F0Mn  type=flt  size=4 bytes=[00 d0 a8 44] = 1350.5\n"
             "    F0Mx  type=fpe2 size=2 bytes=[17 0c]\n"
             "    F0Md  type=ui8  size=1 bytes=[02] = 2\n"
             "    F0md  absent\n"
             "    F0Sf  type=hex_ size=1 bytes=[07] = 7\n",
             "#KEY           : 10 keys total\n\n"
             "all F* keys (7):\n"
             "    FNum  type=ui8  size=1 bytes=[01] = 1\n"
             "    F0Ac  (exists, but the read failed)\n",
             "temperature keys matching Tp*/Te*/Tg*: 2\n"
             "    first few: Tp01, Te02\n",
             "CPU sensors    : 2 ",
             "cpu avg 45.0 max 45.5\n                 gpu avg 0.0 max 0.0, hottest 45.5\n"
             "    -> NO GPU SENSORS.",
         })
        EXPECT_THAT(report, HasSubstr(part));
    EXPECT_THAT(report, Not(HasSubstr("fan 1:")));
    EXPECT_THAT(report, Not(HasSubstr("no recognised")));
    EXPECT_THAT(report, EndsWith("\n\nEnd of dump.\n"));
}

TEST(SMCDiagnostics, TurnsEveryFailureIntoWords) {
    const auto smc = std::make_shared<SimulatedSMC>();
    smc->setKey("#KEY", "ui16", {0, 9});
    smc->setByte("Ftst", 0);
    smc->setKey("FS! ", "ui16", {});
    const std::string report = dump(smc);
    EXPECT_THAT(report, HasSubstr("FNum           : UNREADABLE (SMC key FNum error (result 132))\n"
                                  "                 -> the app would see 0 fans because of this\n"
                                  "also present   : FS!  type=ui16 size=0 bytes=[]\n"));
    EXPECT_THAT(report, HasSubstr("(probing 4 slot(s))"));
    EXPECT_THAT(report, HasSubstr("Ftst           : present type=ui8  size=1 bytes=[00] = 0\n"));
    EXPECT_THAT(report,
                HasSubstr("#KEY           : UNREADABLE — cannot enumerate keys\n\n-- sensor"));
    EXPECT_THAT(report, HasSubstr("       recover. This is the expensive case.\n    -> NO GPU"));

    EXPECT_THAT(dump(std::make_shared<SimulatedSMC>()),
                HasSubstr("Tg*: 0\n    first few: \n    -> no recognised die sensors"));
    smc->setServices(SimulatedSMC::Services::none);
    EXPECT_EQ(dump(smc), header +
                             "FATAL: could not open the SMC: AppleSMC service not found\n"
                             "Nothing below can be collected. Please send this file anyway.\n");
}

TEST(SMCDiagnostics, JudgesByTheSensorsThatTheReadingsAreFrom) {
    const auto smc = std::make_shared<SimulatedSMC>();
    smc->setFloat("Tp01", 45.5F);
    smc->setFault("#KEY", SimulatedSMC::Fault::fails);
    const std::string report = dump(smc);
    EXPECT_THAT(report, HasSubstr("cpu avg 45.5")) << "the keys could be counted by then";
    EXPECT_THAT(report, Not(HasSubstr("NO CPU")));
    EXPECT_THAT(report, Not(HasSubstr("both groups")));
    for (char digit = '0'; digit <= '9'; ++digit)
        smc->setFloat(std::string("Tg0") + digit, 40);
    EXPECT_THAT(dump(smc), HasSubstr("both groups filled; no repeated re-enumeration.\n\nEnd"));
    smc->setFloat("Tp02", 45);
    smc->setFloat("Tp03", 45);
    EXPECT_THAT(dump(smc), HasSubstr("Tg09, Tp02\n")) << "the first twelve of thirteen";
}

TEST(SMCDiagnostics, WritesNumbersInFullAndNoDigitTooMany) {
    using SMCDiagnostics::decimalText;
    for (const auto& [bits, text] : {
             std::pair(0x3dcccccdU, "0.1"),
             {0x52e6b438U, "495433020000.0"}, // exactly 495433023488
             {0x7f7fffffU, "340282350000000000000000000000000000000.0"},
             {0x00000001U, "0.000000000000000000000000000000000000000000001"},
             {0x80000000U, "-0.0"},
             {0xff800000U, "-inf"},
             {0x7fc00000U, "nan"},
         })
        EXPECT_EQ(decimalText(std::bit_cast<float>(bits)), text);
    EXPECT_EQ(decimalText(1e-5), "0.00001");
    EXPECT_EQ(decimalText(1e22), "10000000000000000000000.0");
    EXPECT_EQ(decimalText(0.1 + 0.2), "0.30000000000000004");
}

} // namespace
} // namespace kestrowind
