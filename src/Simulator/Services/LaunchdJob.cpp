#include "Simulator/Services/LaunchdJob.h"

#include <QFile>
#include <QXmlStreamReader>

namespace kestrowind {

using namespace Qt::StringLiterals;

namespace {

std::vector<std::string> readTexts(QXmlStreamReader& xml) {
    std::vector<std::string> texts;
    while (xml.readNextStartElement()) {
        if (xml.name() == "string"_L1)
            texts.push_back(xml.readElementText().toStdString());
        else
            xml.raiseError(u"<%1> where a <string> must be"_s.arg(xml.name()));
    }
    return texts;
}

/// The first key of a dictionary, whose values do not matter.
std::string readFirstKey(QXmlStreamReader& xml) {
    std::string first;
    while (xml.readNextStartElement()) {
        if (xml.name() == "key"_L1 && first.empty())
            first = xml.readElementText().toStdString();
        else
            xml.skipCurrentElement();
    }
    return first;
}

/// Whether a KeepAlive dictionary wants a program back that failed; no other condition is known.
bool readWantsFailedBack(QXmlStreamReader& xml) {
    bool wantsBack = false;
    QString key;
    while (xml.readNextStartElement()) {
        if (xml.name() == "key"_L1) {
            key = xml.readElementText();
        } else {
            wantsBack = wantsBack || (key == "SuccessfulExit"_L1 && xml.name() == "false"_L1);
            xml.skipCurrentElement();
        }
    }
    return wantsBack;
}

LaunchdJob readJob(QXmlStreamReader& xml) {
    LaunchdJob job;
    if (!xml.readNextStartElement() || xml.name() != "plist"_L1 || !xml.readNextStartElement() ||
        xml.name() != "dict"_L1) {
        xml.raiseError(u"not a property list with a dictionary"_s);
        return job;
    }
    QString key;
    while (xml.readNextStartElement()) {
        if (xml.name() == "key"_L1)
            key = xml.readElementText();
        else if (key == "Label"_L1 && xml.name() == "string"_L1)
            job.label = xml.readElementText().toStdString();
        else if (key == "ProgramArguments"_L1 && xml.name() == "array"_L1)
            job.programArguments = readTexts(xml);
        else if (key == "MachServices"_L1 && xml.name() == "dict"_L1)
            job.machService = readFirstKey(xml);
        else if (key == "KeepAlive"_L1 && xml.name() == "dict"_L1)
            job.isKeptAliveUntilItSucceeds = readWantsFailedBack(xml);
        else
            xml.skipCurrentElement();
    }
    return job;
}

} // namespace

std::expected<LaunchdJob, std::string> readLaunchdJob(const std::filesystem::path& propertyList) {
    QFile file(propertyList);
    if (!file.open(QIODevice::ReadOnly))
        return std::unexpected(file.errorString().toStdString());
    QXmlStreamReader xml(&file);
    LaunchdJob job = readJob(xml);
    if (xml.hasError())
        return std::unexpected(xml.errorString().toStdString());
    if (job.label.empty())
        return std::unexpected("there is no Label");
    if (job.machService.empty() || job.machService.find('/') != std::string::npos)
        return std::unexpected("there is no usable Mach service");
    if (job.programArguments.empty() || !job.programArguments.front().starts_with('/'))
        return std::unexpected("ProgramArguments does not begin with an absolute path");
    return job;
}

} // namespace kestrowind
