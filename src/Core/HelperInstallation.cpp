#include "Core/HelperInstallation.h"

#include "Shared/HelperShared/HelperConstants.h"

#include <QStringList>

namespace kestrowind {
namespace {

using namespace Qt::StringLiterals;

const QString label = QString::fromLatin1(HelperConstants::machServiceName);
const QString executablePath = QString::fromLatin1(HelperConstants::helperInstallPath);
const QString plistPath = QString::fromLatin1(HelperConstants::daemonPlistPath);

/// A word that the shell takes literally: inside single quotes only the quote itself needs care.
QString quoted(QString text) {
    return u'\'' + text.replace(u'\'', u"'\\''"_s) + u'\'';
}

QString bootOut() {
    return u"launchctl bootout system/"_s + label + u" 2>/dev/null || true"_s;
}

} // namespace

QString HelperInstallation::executableResource() {
    return u"KestrowindHelper"_s;
}

QString HelperInstallation::jobDescriptionResource() {
    return label + u".plist"_s;
}

QString HelperInstallation::installScript(const QString& executableSource,
                                          const QString& jobDescriptionSource) {
    return QStringList{
        u"mkdir -p /Library/PrivilegedHelperTools"_s,
        bootOut(),
        u"cp "_s + quoted(executableSource) + u' ' + quoted(executablePath),
        u"chown root:wheel "_s + quoted(executablePath),
        u"chmod 755 "_s + quoted(executablePath),
        u"cp "_s + quoted(jobDescriptionSource) + u' ' + quoted(plistPath),
        u"chown root:wheel "_s + quoted(plistPath),
        u"chmod 644 "_s + quoted(plistPath),
        u"launchctl bootstrap system "_s + quoted(plistPath),
    }
        .join(u'\n');
}

QString HelperInstallation::removalScript() {
    return bootOut() + u"\nrm -f "_s + quoted(plistPath) + u' ' + quoted(executablePath);
}

QString HelperInstallation::withAdministratorPrivileges(QString shellScript) {
    shellScript.replace(u'\\', u"\\\\"_s);
    shellScript.replace(u'"', u"\\\""_s);
    return u"do shell script \""_s + shellScript + u"\" with administrator privileges"_s;
}

} // namespace kestrowind
