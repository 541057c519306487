#include "Core/SMCDiagnostics.h"

#include "Platform/SystemInformation.h"
#include "Shared/HelperShared/HelperConstants.h"
#include "Shared/SMCKit/SMCTemperatureSensors.h"

#include <QByteArray>
#include <QLocale>

#include <array>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <limits>
#include <utility>

namespace kestrowind {
namespace {

using namespace Qt::StringLiterals;

constexpr int slotsWithoutFanCount = 4;
constexpr std::size_t sampledTemperatureKeys = 12;

std::string hexadecimal(std::span<const std::uint8_t> bytes) {
    constexpr char digits[] = "0123456789abcdef";
    std::string text;
    for (const std::uint8_t byte : bytes) {
        if (!text.empty())
            text += ' ';
        text += digits[byte >> 4];
        text += digits[byte & 0xF];
    }
    return text;
}

/// The report on one machine; each function is one section of it.
class Report {
public:
    Report(const SystemInformation& information, const SMCDiagnostics::WriteLine& writeLine)
        : m_information(information)
        , m_line(writeLine) {}

    void writeHeader() {
        m_line("Kestrowind SMC diagnostic dump");
        m_line("=============================");
        m_line("app version   : " + versionString());
        m_line("hardware model: " + sysctlString("hw.model"));
        m_line("cpu           : " + sysctlString("machdep.cpu.brand_string"));
        m_line("macOS         : " + m_information.operatingSystemVersion().toStdString());
        m_line("");
    }

    void writeOpenFailure(const SMCError& error) {
        m_line("FATAL: could not open the SMC: " + description(error));
        m_line("Nothing below can be collected. Please send this file anyway.");
    }

    void writeSections(SMCConnection& smc) {
        m_line("SMC connection: OK");
        dumpFanCount(smc);
        dumpPerFanKeys(smc);
        dumpUnlockKey(smc);
        dumpKeyDirectory(smc);
        dumpSensorDiscovery(smc);
        m_line("");
        m_line("End of dump.");
    }

private:
    void beginSection(const std::string& title) {
        m_line("");
        m_line(title);
    }

    std::string versionString() const {
        const auto text = [this](const QString& key) {
            return m_information.bundleText(key).value_or(u"?"_s).toStdString();
        };
        return text(u"CFBundleShortVersionString"_s) + " (" + text(u"CFBundleVersion"_s) +
               "), helper code " + HelperConstants::helperVersion;
    }

    std::string sysctlString(const char* name) const {
        return m_information.sysctl(name).value_or(u"unknown"_s).toStdString();
    }

    void dumpFanCount(SMCConnection& smc) {
        beginSection("-- fan count ------------------------------------------------");
        if (const auto count = smc.readUInt8("FNum")) {
            m_line("FNum           : " + std::to_string(*count));
        } else {
            m_line("FNum           : UNREADABLE (" + description(count.error()) + ")");
            m_line("                 -> the app would see 0 fans because of this");
        }
        for (const char* key : {"FCnt", "FMax", "FS! "}) {
            if (smc.keyExists(key))
                m_line("also present   : " + std::string(key) + " " +
                       SMCDiagnostics::describeValue(smc, key));
        }
    }

    void dumpPerFanKeys(SMCConnection& smc) {
        const int slots = smc.readUInt8("FNum").value_or(slotsWithoutFanCount);
        beginSection("-- per-fan keys (probing " + std::to_string(slots) +
                     " slot(s)) ---------------------------");
        m_line("Ac=actual Tg=target Mn=min Mx=max Md/md=mode");
        for (int slot = 0; slot < slots; ++slot) {
            m_line("  fan " + std::to_string(slot) + ":");
            for (const char* suffix : {"Ac", "Tg", "Mn", "Mx", "Md", "md", "Sf", "Tp"}) {
                const std::string key = smcFanKey(slot, suffix);
                m_line("    " + key + "  " +
                       (smc.keyExists(key) ? SMCDiagnostics::describeValue(smc, key) : "absent"));
            }
        }
    }

    void dumpUnlockKey(SMCConnection& smc) {
        beginSection("-- firmware unlock ------------------------------------------");
        if (smc.keyExists("Ftst"))
            m_line("Ftst           : present " + SMCDiagnostics::describeValue(smc, "Ftst"));
        else
            m_line("Ftst           : absent (expected on M5 and later)");
    }

    void dumpKeyDirectory(SMCConnection& smc) {
        beginSection("-- key directory --------------------------------------------");
        const auto count = smc.keyCount();
        if (!count) {
            m_line("#KEY           : UNREADABLE — cannot enumerate keys");
            return;
        }
        m_line("#KEY           : " + std::to_string(*count) + " keys total");

        std::vector<std::string> fanKeys;
        std::size_t temperatureKeys = 0;
        std::string samples;
        for (std::uint32_t index = 0; index < std::min(*count, smcMaximumKeyCount); ++index) {
            const auto name = smc.keyName(index);
            if (!name)
                continue;
            if (name->starts_with('F')) {
                fanKeys.push_back(*name);
            } else if (smcSensorGroup(*name) != SMCSensorGroup::none) {
                if (temperatureKeys++ < sampledTemperatureKeys)
                    samples += (samples.empty() ? "" : ", ") + *name;
            }
        }

        beginSection("all F* keys (" + std::to_string(fanKeys.size()) + "):");
        for (const std::string& key : fanKeys)
            m_line("    " + key + "  " + SMCDiagnostics::describeValue(smc, key));
        beginSection("temperature keys matching Tp*/Te*/Tg*: " + std::to_string(temperatureKeys));
        m_line("    first few: " + samples);
        if (temperatureKeys == 0)
            m_line("    -> no recognised die sensors; temperatures would read as unavailable");
    }

    void dumpSensorDiscovery(SMCConnection& smc) {
        using SMCDiagnostics::decimalText;
        beginSection("-- sensor discovery (what the app actually ends up using) ----");
        SMCTemperatureSensors sensors(smc);
        const auto counts = sensors.sensorCounts();
        m_line("CPU sensors    : " + std::to_string(counts.cpu) + "   (Tp* / Te*)");
        m_line("GPU sensors    : " + std::to_string(counts.gpu) + "   (Tg*)");
        const SMCTemperatureSnapshot snapshot = sensors.snapshot();
        m_line("reads back as  : cpu avg " + decimalText(snapshot.cpuAverage) + " max " +
               decimalText(snapshot.cpuMax));
        m_line("                 gpu avg " + decimalText(snapshot.gpuAverage) + " max " +
               decimalText(snapshot.gpuMax) + ", hottest " + decimalText(snapshot.hottest));
        // Counted anew: the snapshot may have looked for sensors once more.
        writeVerdict(sensors.sensorCounts());
    }

    void writeVerdict(const SMCTemperatureSensors::Counts& counts) {
        if (counts.cpu > 0 && counts.gpu > 0)
            m_line("    -> both groups filled; no repeated re-enumeration.");
        if (counts.cpu == 0) {
            m_line("    -> NO CPU SENSORS. The helper's temperature safety floor has no");
            m_line("       input, and discovery re-runs every few seconds trying to");
            m_line("       recover. This is the expensive case.");
        }
        if (counts.gpu == 0) {
            m_line("    -> NO GPU SENSORS. Either the GPU was powered down just now, or");
            m_line("       this Mac does not spell them Tg*. Discovery keeps retrying on");
            m_line("       a back-off, and each retry walks every key the SMC has.");
        }
    }

    const SystemInformation& m_information;
    const SMCDiagnostics::WriteLine& m_line;
};

} // namespace

std::string SMCDiagnostics::decimalText(double value) {
    if (std::isnan(value))
        return "nan";
    // The sign apart: the toolkit's zero has none.
    std::string text = std::signbit(value) ? "-" : "";
    text += QByteArray::number(std::abs(value), 'f', QLocale::FloatingPointShortest).toStdString();
    return std::isinf(value) || text.find('.') != std::string::npos ? text : text + ".0";
}

std::string SMCDiagnostics::decimalText(float value) {
    // As a double it has the digits that few enough decimals of it have, and no more. The shortest
    // form of a float itself is in no standard library of the oldest macOS.
    double shortest = value;
    std::array<char, 32> text;
    for (int digits = 1; digits <= std::numeric_limits<float>::max_digits10; ++digits) {
        std::snprintf(text.data(), text.size(), "%.*e", digits - 1, static_cast<double>(value));
        if (std::strtof(text.data(), nullptr) == value) {
            shortest = std::strtod(text.data(), nullptr);
            break;
        }
    }
    return decimalText(shortest);
}

std::string SMCDiagnostics::describeValue(SMCConnection& smc, std::string_view key) {
    const auto value = smc.readBytes(key);
    if (!value)
        return "(exists, but the read failed)";
    std::string text = "type=" + value->type() + " size=" + std::to_string(value->bytes().size()) +
                       " bytes=[" + hexadecimal(value->bytes()) + "]";
    if (value->isType("flt ")) {
        if (const auto number = smc.readFloat(key))
            text += " = " + decimalText(*number);
    } else if (value->isType("ui8 ") || value->isType("hex_") || value->isType("flag")) {
        if (const auto byte = smc.readUInt8(key))
            text += " = " + std::to_string(*byte);
    }
    return text;
}

void SMCDiagnostics::dump(const SystemInformation& information,
                          const std::shared_ptr<SMCUserClient>& userClient,
                          const WriteLine& writeLine) {
    Report report(information, writeLine);
    report.writeHeader();
    if (auto smc = SMCConnection::open(userClient))
        report.writeSections(**smc);
    else
        report.writeOpenFailure(smc.error());
}

} // namespace kestrowind
