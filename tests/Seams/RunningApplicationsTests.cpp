#include "ThisSystem.h"

#include <QProcess>

namespace kestrowind {
namespace {

using namespace Qt::StringLiterals;

/// Runs of a program made for this (tests/Seams/Copy), all of one bundle.
class RunningApplicationsContract : public testing::Test {
protected:
    static QByteArray line(QProcess& process) {
        while (!process.canReadLine()) {
            if (!process.waitForReadyRead(10'000))
                return "(nothing)";
        }
        return process.readLine().trimmed();
    }

    /// Returns once it runs.
    std::unique_ptr<QProcess> start(const QString& mode) {
        auto process = std::make_unique<QProcess>();
        process->setProcessChannelMode(QProcess::ForwardedErrorChannel);
        process->start(QStringLiteral(KESTROWIND_SEAM_COPY), {mode});
        EXPECT_EQ(line(*process), "up");
        return process;
    }
    /// What a copy finds when it is asked.
    QByteArray olderCopies(QProcess& process) {
        process.write("\n");
        return line(process);
    }

    ThisSystem::Workspace m_workspace;
};

TEST_F(RunningApplicationsContract, OnlyOlderCopiesAreFound) {
    const auto older = start(u"count"_s);
    const auto newer = start(u"count"_s);
    EXPECT_EQ(olderCopies(*older), "0") << "neither itself nor a younger one";
    EXPECT_EQ(olderCopies(*newer), "1");
    for (QProcess* process : {older.get(), newer.get()}) {
        process->closeWriteChannel();
        EXPECT_TRUE(process->waitForFinished(10'000));
    }
}

TEST_F(RunningApplicationsContract, AnOlderCopyEndsWhenItIsAskedAndWhenItIsForced) {
    for (const QString& mode : {u"terminate"_s, u"force"_s}) {
        const auto older = start(u"count"_s);
        const auto newer = start(mode);
        EXPECT_EQ(olderCopies(*newer), "1");
        EXPECT_EQ(line(*newer), "ended") << mode.toStdString();
        EXPECT_TRUE(older->waitForFinished(10'000));
        newer->closeWriteChannel();
        EXPECT_TRUE(newer->waitForFinished(10'000));
    }
}

} // namespace
} // namespace kestrowind
