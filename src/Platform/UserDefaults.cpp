#include "Platform/UserDefaults.h"

#include <QFile>
#include <QLockFile>
#include <QLoggingCategory>
#include <QRegularExpression>

#include <chrono>

namespace kestrowind {
namespace {

using namespace Qt::StringLiterals;

Q_LOGGING_CATEGORY(defaultsLog, "app.kestrowind.defaults", QtInfoMsg)

/// The elements of a list in round brackets, separated by commas, quoted where they hold blanks or
/// commas; absent when the text is no such list.
std::optional<QStringList> parseList(const QString& text) {
    static const QRegularExpression list(uR"(^\s*\((.*)\)\s*$)"_s,
                                         QRegularExpression::DotMatchesEverythingOption);
    static const QRegularExpression element(
        uR"re(\G\s*(?:"((?:[^"\\]|\\.)*)"|([^\s,"()]+))\s*(?:,|$))re"_s,
        QRegularExpression::DotMatchesEverythingOption);
    static const QRegularExpression escape(uR"(\\(.))"_s,
                                           QRegularExpression::DotMatchesEverythingOption);
    const auto outer = list.match(text);
    if (!outer.hasMatch())
        return std::nullopt;
    const QString inner = outer.captured(1).trimmed();
    QStringList elements;
    qsizetype position = 0;
    while (position < inner.size()) {
        const auto match = element.match(inner, position);
        if (!match.hasMatch())
            return std::nullopt;
        QString quoted = match.captured(1);
        elements.append(match.capturedStart(1) >= 0 ? quoted.replace(escape, u"\\1"_s)
                                                    : match.captured(2));
        position = match.capturedEnd();
    }
    return elements;
}

bool truthOfText(const QString& text) {
    static const QRegularExpression truth(uR"(^\s*[+-]?0*[YyTt1-9])"_s);
    return truth.match(text).hasMatch();
}

double numberOfText(const QString& text) {
    static const QRegularExpression number(uR"(^\s*[+-]?(?:\d+\.?\d*|\.\d+)(?:[eE][+-]?\d+)?)"_s);
    return number.match(text).captured().trimmed().toDouble();
}

/// A process that was killed as it stored something leaves the lock of the file behind. One that
/// does not say whose it is would hold up the next change for half a minute.
void removeAbandonedLock(const QSettings& store) {
    constexpr std::chrono::milliseconds longestWrite(50);
    const QString path = store.fileName() + u".lock"_s;
    if (!QFile::exists(path))
        return;
    QLockFile lock(path);
    lock.setStaleLockTime(longestWrite);
    if (!lock.tryLock(3 * longestWrite))
        qCWarning(defaultsLog) << "the settings are locked:" << path;
}

} // namespace

UserDefaults::UserDefaults(const QStringList& arguments, OpenStore openStore)
    : m_arguments(parseArguments(arguments))
    , m_openStore(std::move(openStore))
    , m_store(m_openStore()) {
    removeAbandonedLock(*m_store);
}

UserDefaults::~UserDefaults() = default;

bool UserDefaults::isArgumentKey(const QString& argument) {
    return argument.size() > 1 && argument.startsWith(u'-') && !argument.at(1).isDigit() &&
           argument.at(1) != u'.';
}

QHash<QString, QVariant> UserDefaults::parseArguments(const QStringList& arguments) {
    QHash<QString, QVariant> pairs;
    for (qsizetype i = 0; i + 1 < arguments.size(); ++i) {
        if (!isArgumentKey(arguments.at(i)) || isArgumentKey(arguments.at(i + 1)))
            continue;
        const QString& text = arguments.at(i + 1);
        const auto list = parseList(text);
        pairs.insert(arguments.at(i).mid(1), list ? QVariant(*list) : QVariant(text));
        ++i;
    }
    return pairs;
}

QVariant UserDefaults::value(const QString& key) const {
    if (const auto argument = m_arguments.constFind(key); argument != m_arguments.cend())
        return *argument;
    if (const QVariant stored = m_store->value(key); stored.isValid())
        return stored;
    return m_registered.value(key);
}

std::optional<QString> UserDefaults::string(const QString& key) const {
    const QVariant found = value(key);
    if (!found.isValid() || found.typeId() == QMetaType::QStringList ||
        !found.canConvert<QString>())
        return std::nullopt;
    return found.toString();
}

std::optional<QStringList> UserDefaults::stringArray(const QString& key) const {
    const QVariant found = value(key);
    // The native store reads a list of one element back as a text.
    if (!found.isValid() || !found.canConvert<QStringList>())
        return std::nullopt;
    return found.toStringList();
}

bool UserDefaults::boolean(const QString& key) const {
    const QVariant found = value(key);
    return found.typeId() == QMetaType::Bool ? found.toBool() : truthOfText(found.toString());
}

double UserDefaults::number(const QString& key) const {
    const QVariant found = value(key);
    return found.typeId() == QMetaType::Double ? found.toDouble() : numberOfText(found.toString());
}

void UserDefaults::setString(const QString& key, const QString& value) {
    store(key, value);
}

void UserDefaults::setStringArray(const QString& key, const QStringList& value) {
    store(key, value);
}

void UserDefaults::setBoolean(const QString& key, bool value) {
    store(key, value);
}

void UserDefaults::remove(const QString& key) {
    store(key, {});
}

void UserDefaults::registerDefault(const QString& key, const QVariant& value) {
    m_registered.insert(key, value);
}

void UserDefaults::store(const QString& key, const QVariant& value) {
    if (m_store->value(key) == value)
        return;
    // A store that failed once says so for ever; another one has what is still to be written.
    if (m_store->status() != QSettings::NoError)
        m_store = m_openStore();
    if (value.isValid())
        m_store->setValue(key, value);
    else
        m_store->remove(key);
    m_store->sync();
    if (m_store->status() != QSettings::NoError)
        qCWarning(defaultsLog) << "could not store" << key << "in" << m_store->fileName();
    Q_EMIT changed(key);
}

} // namespace kestrowind
