#include "Platform/Linux/AutostartEntry.h"

#include "Platform/BundleInformation.h"
#include "Platform/DurableFile.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QStandardPaths>

#include <filesystem>

namespace kestrowind {
namespace {

using namespace Qt::StringLiterals;

constexpr qsizetype largestEntry = 64 * 1024; ///< bytes

/// Escapes of every text value of an entry, below those of Exec itself.
QString escaped(QString value) {
    return value.replace(u'\\', u"\\\\"_s)
        .replace(u'\n', u"\\n"_s)
        .replace(u'\t', u"\\t"_s)
        .replace(u'\r', u"\\r"_s);
}

std::optional<QString> unescaped(const QString& value) {
    static const QHash<QChar, QChar> meanings{
        {u's', u' '}, {u'n', u'\n'}, {u't', u'\t'}, {u'r', u'\r'}, {u'\\', u'\\'}};
    QString text;
    for (qsizetype at = 0; at < value.size(); ++at) {
        if (value[at] != u'\\') {
            text += value[at];
            continue;
        }
        const auto meaning = meanings.constFind(value.size() > ++at ? value[at] : QChar());
        if (meaning == meanings.cend())
            return std::nullopt;
        text += *meaning;
    }
    return text;
}

bool needsBackslash(QChar character) {
    return u"\"`$\\"_s.contains(character);
}

/// Takes one argument off the text; absent when its quotation mark is not closed, or when it holds
/// a field that a launcher would fill in.
std::optional<QString> takeArgument(QString& text) {
    QString argument;
    bool isQuoted = false;
    qsizetype at = 0;
    for (; at < text.size() && (isQuoted || text[at] != u' '); ++at) {
        const QChar next = at + 1 < text.size() ? text[at + 1] : QChar();
        if (text[at] == u'"') {
            isQuoted = !isQuoted;
        } else if (isQuoted && text[at] == u'\\' && needsBackslash(next)) {
            argument += next;
            ++at;
        } else if (text[at] == u'%') {
            if (next != u'%')
                return std::nullopt;
            argument += u'%';
            ++at;
        } else {
            argument += text[at];
        }
    }
    text.remove(0, at);
    return isQuoted ? std::nullopt : std::optional(argument);
}

/// The keys of the group [Desktop Entry]; none when the file cannot be read.
QHash<QString, QString> readEntry(const QString& path) {
    QHash<QString, QString> entry;
    const auto content = DurableFile::read(path, largestEntry);
    if (!content)
        return entry;
    bool isInGroup = false;
    for (const QString& line : QString::fromUtf8(*content).split(u'\n')) {
        if (line.startsWith(u'['))
            isInGroup = line.trimmed() == "[Desktop Entry]"_L1;
        else if (const qsizetype equals = line.indexOf(u'='); isInGroup && equals > 0)
            entry.insert(line.first(equals).trimmed(), line.sliced(equals + 1).trimmed());
    }
    return entry;
}

} // namespace

AutostartEntry::AutostartEntry(QString file, QStringList command)
    : m_file(std::move(file))
    , m_command(std::move(command)) {}

std::unique_ptr<AutostartEntry> AutostartEntry::ofThisApplication() {
    return std::make_unique<AutostartEntry>(
        QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + u"/autostart/"_s +
            QLatin1StringView(BundleInformation::identifier) + u".desktop"_s,
        QStringList{QCoreApplication::applicationFilePath(), u"-StartHidden"_s, u"YES"_s});
}

bool AutostartEntry::isEnabled() const {
    const auto entry = readEntry(m_file);
    // Some desktops switch an entry off by a key of their own.
    if (entry.value(u"Hidden"_s) == "true"_L1 ||
        entry.value(u"X-GNOME-Autostart-enabled"_s) == "false"_L1)
        return false;
    const auto command = commandOf(entry.value(u"Exec"_s));
    return command && !command->isEmpty() && command->constFirst() == m_command.constFirst();
}

std::expected<void, QString> AutostartEntry::registerApplication() {
    std::error_code error;
    std::filesystem::create_directories(
        QFile::encodeName(QFileInfo(m_file).absolutePath()).toStdString(), error);
    if (error)
        return failure(QString::fromLocal8Bit(error.message().c_str()));
    const QString entry = u"[Desktop Entry]\n"
                          "Type=Application\n"
                          "Name=Kestrowind\n"
                          "Exec=%1\n"
                          "Terminal=false\n"_s.arg(execValue(m_command));
    if (const auto written = DurableFile::write(m_file, entry.toUtf8()); !written)
        return failure(written.error());
    return {};
}

std::expected<void, QString> AutostartEntry::unregisterApplication() {
    std::error_code error;
    std::filesystem::remove(QFile::encodeName(m_file).toStdString(), error);
    if (error)
        return failure(QString::fromLocal8Bit(error.message().c_str()));
    return {};
}

std::unexpected<QString> AutostartEntry::failure(const QString& reason) const {
    return std::unexpected(m_file + u": "_s + reason);
}

QString AutostartEntry::execValue(const QStringList& command) {
    QStringList arguments;
    for (const QString& word : command) {
        QString argument = u"\""_s;
        for (const QChar character : word) {
            if (needsBackslash(character))
                argument += u'\\';
            argument += character;
            if (character == u'%')
                argument += u'%';
        }
        arguments.append(argument + u'"');
    }
    return escaped(arguments.join(u' '));
}

std::optional<QStringList> AutostartEntry::commandOf(const QString& execValue) {
    auto text = unescaped(execValue);
    if (!text)
        return std::nullopt;
    QStringList command;
    while (!text->isEmpty()) {
        if (text->startsWith(u' ')) {
            text->remove(0, 1);
            continue;
        }
        const auto argument = takeArgument(*text);
        if (!argument)
            return std::nullopt;
        command.append(*argument);
    }
    return command;
}

} // namespace kestrowind
