#include "Platform/AdminScriptRunner.h"
#include "Platform/DurableFile.h"
#include "Support/QtPrinters.h"
#include "Support/TestDefaults.h"

#include <QCoroFuture>
#include <QDir>
#include <QFile>
#include <QTest>
#include <gmock/gmock.h>

namespace kestrowind {
namespace {

using namespace Qt::StringLiterals;

TEST(UserDefaults, ArgumentsComeBeforeStoredBeforeRegistered) {
    const TestHome home;
    const auto plain = home.defaults();
    plain->registerDefault(u"hides"_s, true);
    EXPECT_TRUE(plain->boolean(u"hides"_s));
    plain->setBoolean(u"hides"_s, false);
    EXPECT_FALSE(plain->boolean(u"hides"_s));
    EXPECT_TRUE(home.defaults({u"-hides"_s, u"YES"_s})->boolean(u"hides"_s));
    plain->remove(u"hides"_s);
    EXPECT_TRUE(plain->boolean(u"hides"_s));
}

TEST(UserDefaults, ReadsArgumentsAsThePlatformDoes) {
    const TestHome home;
    const auto truth = [&](const QString& text) {
        return home.defaults({u"-k"_s, text})->boolean(u"k"_s);
    };
    for (const QString& text : {u"YES"_s, u"true"_s, u"1"_s, u"y"_s, u" +007"_s, u"-1"_s})
        EXPECT_TRUE(truth(text)) << text.toStdString();
    for (const QString& text : {u"NO"_s, u"false"_s, u"0"_s, u"maybe"_s, u""_s, u"00"_s})
        EXPECT_FALSE(truth(text)) << text.toStdString();

    const auto number = [&](const QString& text) {
        return home.defaults({u"-k"_s, text})->number(u"k"_s);
    };
    EXPECT_EQ(number(u"-2.5"_s), -2.5);
    EXPECT_EQ(number(u"7 seconds"_s), 7);
    EXPECT_EQ(number(u"soon"_s), 0);

    const auto pairs = UserDefaults::parseArguments(
        {u"stray"_s, u"-DumpSMCKeys"_s, u"-ActivatePreset"_s, u"Full Speed"_s, u"-Twice"_s, u"1"_s,
         u"-Twice"_s, u"2"_s, u"-List"_s, u"(automatic, \"a, \\\"b\")"_s, u"-Last"_s});
    EXPECT_EQ(pairs.size(), 3);
    EXPECT_EQ(pairs.value(u"ActivatePreset"_s).toString(), u"Full Speed"_s);
    EXPECT_EQ(pairs.value(u"Twice"_s).toString(), u"2"_s);
    EXPECT_EQ(pairs.value(u"List"_s).toStringList(), QStringList({u"automatic"_s, u"a, \"b"_s}));
}

TEST(UserDefaults, SurvivesAFileOfNonsense) {
    const TestHome home;
    home.write(u"defaults.ini"_s, QByteArray("[[[\0\xff=\n%zz=@Variant(\n", 20));
    const auto defaults = home.defaults();
    EXPECT_EQ(defaults->string(u"activePresetID"_s), std::nullopt);
    defaults->setString(u"activePresetID"_s, u"x"_s);
    EXPECT_EQ(defaults->string(u"activePresetID"_s), u"x"_s);
}

TEST(DurableFile, ReplacesWholeOrNotAtAll) {
    const TestHome home;
    ASSERT_TRUE(DurableFile::write(home.path(u"file"_s), "old"));
    ASSERT_TRUE(DurableFile::write(home.path(u"file"_s), "new"));
    EXPECT_EQ(home.content(u"file"_s), "new");
    EXPECT_FALSE(DurableFile::write(home.path(u"no/such/folder"_s), "x"));
    EXPECT_FALSE(DurableFile::write(home.path(), "x"));
    EXPECT_EQ(QDir(home.path()).entryList(QDir::Files), QStringList{u"file"_s}) << "leftovers";
    EXPECT_FALSE(DurableFile::setAside(home.path(u"missing"_s), u"kept"_s));
}

TEST(ProcessScriptRunner, ReportsHowTheRunnerEnded) {
    const TestHome home;
    const QString runner = home.path(u"runner"_s);
    const auto outcomeOf = [&](const QByteArray& script) {
        home.write(u"runner"_s, "#!/bin/sh\n" + script);
        QFile::setPermissions(runner, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        auto future = ProcessScriptRunner(runner).run(u"say \"ä\nb\""_s);
        EXPECT_TRUE(QTest::qWaitFor([&] { return future.isFinished(); }));
        return future.result();
    };
    using Kind = ScriptOutcome::Kind;
    EXPECT_EQ(outcomeOf("[ $# = 2 ] && [ \"$1\" = -e ] && [ \"$2\" = 'say \"ä\nb\"' ]"),
              (ScriptOutcome{Kind::succeeded, {}}));
    EXPECT_EQ(outcomeOf("echo out; echo ' it failed ' >&2; exit 3"),
              (ScriptOutcome{Kind::failed, u"it failed"_s}));
    // No UTF-8, and UTF-8 cut short.
    for (const char* text : {"\\377", "no \\303"}) {
        EXPECT_EQ(outcomeOf("printf '" + QByteArray(text) + "' >&2; exit 1"),
                  (ScriptOutcome{Kind::failed, u"unknown error"_s}));
    }
    EXPECT_EQ(outcomeOf("kill -9 $$").kind, Kind::failed);
    // More than a pipe holds.
    EXPECT_EQ(outcomeOf("head -c 300000 /dev/zero | tr '\\0' x >&2; exit 1").message.size(),
              300000);
    auto missing = ProcessScriptRunner(home.path(u"missing"_s)).run({});
    EXPECT_TRUE(QTest::qWaitFor([&] { return missing.isFinished(); }));
    EXPECT_EQ(missing.result().kind, Kind::notStarted);
    EXPECT_FALSE(missing.result().message.isEmpty());
}

} // namespace
} // namespace kestrowind
