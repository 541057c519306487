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
    ThisSystem::Workspace m_workspace;
};

TEST_F(RunningApplicationsContract, OnlyOlderCopiesAreFoundAndEndWhenTheyAreAskedOrForced) {
    for (const QString& mode : {u"terminate"_s, u"force"_s}) {
        const auto older = start(mode);
        const auto newer = start(mode);
        older->write("\n");
        EXPECT_EQ(line(*older), "0") << "neither itself nor a younger one";
        EXPECT_EQ(line(*older), "ended");
        newer->write("\n");
        EXPECT_EQ(line(*newer), "1");
        EXPECT_EQ(line(*newer), "ended") << mode.toStdString();
        EXPECT_TRUE(older->waitForFinished(10'000));
        newer->closeWriteChannel();
        EXPECT_TRUE(newer->waitForFinished(10'000));
    }
}

} // namespace
} // namespace kestrowind
