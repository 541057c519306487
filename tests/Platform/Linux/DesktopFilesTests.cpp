#include "Platform/Linux/AutostartEntry.h"
#include "Platform/Linux/SettingsFile.h"
#include "Support/QtPrinters.h"
#include "Support/TestDefaults.h"

#include <QDir>
#include <QFile>
#include <gtest/gtest.h>

#include <sys/stat.h>

namespace kestrowind {
namespace {

using namespace Qt::StringLiterals;

TEST(UserDefaults, WarnsOfWhatItCannotStoreAndStoresItLater) {
    static int warnings = 0;
    const TestHome home;
    home.write(u"in the way"_s, "");
    UserDefaults defaults({}, [&] { return openSettingsFile(home.path(u"in the way/x.ini"_s)); });
    const auto previous =
        qInstallMessageHandler([](QtMsgType type, const QMessageLogContext&, const QString&) {
            warnings += type == QtWarningMsg ? 1 : 0;
        });
    defaults.setString(u"first"_s, u"1"_s);
    QFile::remove(home.path(u"in the way"_s));
    defaults.setString(u"second"_s, u"2"_s);
    qInstallMessageHandler(previous);
    EXPECT_EQ(warnings, 1);
    const auto stored = openSettingsFile(home.path(u"in the way/x.ini"_s));
    EXPECT_EQ(stored->allKeys(), QStringList({u"first"_s, u"second"_s}));
}

TEST(SettingsFile, MovesAsideWhatItCannotRead) {
    const TestHome home;
    const QString path = home.path(u"x.ini"_s);
    ASSERT_EQ(::mkfifo(QFile::encodeName(path).constData(), 0600), 0);
    openSettingsFile(path)->setValue(u"key"_s, u"value"_s);
    EXPECT_EQ(openSettingsFile(path)->value(u"key"_s), u"value"_s);
    QFile(path).resize(100'000'000);
    EXPECT_EQ(openSettingsFile(path)->allKeys(), QStringList());
    EXPECT_EQ(QDir(home.path()).entryList(QDir::Files | QDir::System),
              QStringList({u"x.ini.unreadable"_s, u"x.ini.unreadable-2"_s}));
}

TEST(AutostartEntry, QuotesACommandSoThatADesktopFindsIt) {
    QString all = u"ä\n\t\r"_s;
    for (char16_t character = u' '; character <= u'~'; ++character)
        all += QChar(character);
    for (const QStringList& command :
         {QStringList{u"/bin/x"_s}, QStringList{all, all}, QStringList{u"/a b"_s, u""_s, u"%f"_s}})
        EXPECT_EQ(AutostartEntry::commandOf(AutostartEntry::execValue(command)), command);
    EXPECT_EQ(AutostartEntry::execValue({u"/a \"b\\$c`%"_s}), uR"("/a \\"b\\\\\\$c\\`%%")"_s);
    EXPECT_EQ(AutostartEntry::commandOf(u"/bin/x  -a"_s), QStringList({u"/bin/x"_s, u"-a"_s}));
    for (const QString& bad : {u"\"/bin/x"_s, u"/bin/x %f"_s, u"/bin/x \\q"_s, u"/bin/x \\"_s})
        EXPECT_EQ(AutostartEntry::commandOf(bad), std::nullopt) << bad.toStdString();
}

TEST(AutostartEntry, IsEnabledWhileItStartsThisProgram) {
    const TestHome home;
    const QString name = u"config/autostart/app.desktop"_s;
    const QString file = home.path(name);
    AutostartEntry entry(file, {u"/opt/my \"apps\"/kestrowind"_s, u"-StartHidden"_s, u"YES"_s});
    EXPECT_FALSE(entry.isEnabled());
    EXPECT_TRUE(entry.unregisterApplication()) << "there is none";
    ASSERT_TRUE(entry.registerApplication());
    EXPECT_TRUE(entry.isEnabled());
    const QByteArray written = home.content(name);
    EXPECT_TRUE(written.contains("\"-StartHidden\" \"YES\""));
    EXPECT_FALSE(AutostartEntry(file, {u"/opt/other/kestrowind"_s}).isEnabled());
    for (const char* change : {"Hidden=true\n", "X-GNOME-Autostart-enabled=false\n", "Exec=\n"}) {
        home.write(name, written + change);
        EXPECT_FALSE(entry.isEnabled()) << change;
    }
    home.write(name, written + "[Another Group]\nHidden=true\n");
    EXPECT_TRUE(entry.isEnabled());
    ASSERT_TRUE(entry.registerApplication());
    EXPECT_EQ(home.content(name), written);
    ASSERT_TRUE(entry.unregisterApplication());
    EXPECT_FALSE(QFile::exists(file));
}

TEST(AutostartEntry, SaysWhyItCannotBeChanged) {
    const TestHome home;
    home.write(u"config"_s, "a file");
    AutostartEntry entry(home.path(u"config/autostart/app.desktop"_s), {u"/bin/kestrowind"_s});
    EXPECT_FALSE(entry.registerApplication());
    ASSERT_TRUE(QDir(home.path()).mkpath(u"full.desktop/inside"_s));
    AutostartEntry folder(home.path(u"full.desktop"_s), {u"/bin/kestrowind"_s});
    EXPECT_EQ(folder.unregisterApplication().error(),
              home.path(u"full.desktop: Directory not empty"_s));
}

} // namespace
} // namespace kestrowind
