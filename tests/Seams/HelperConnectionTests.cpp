#include "ThisSystem.h"

#include "Shared/HelperShared/HelperConstants.h"
#include "Shared/HelperShared/HelperStatus.h"
#include "Support/QtPrinters.h"

#include <QTest>

#include <atomic>

namespace kestrowind {
namespace {

using namespace Qt::StringLiterals;

/// What became of the calls of a test. Handlers may come on any thread, and after its end.
struct Ends {
    std::atomic<int> replies = 0;
    std::atomic<int> errors = 0;
    std::atomic<int> invalidations = 0;

    [[nodiscard]] int calls() const { return replies + errors; }
};

bool waitFor(const std::function<bool()>& condition) {
    return QTest::qWaitFor(condition, 10'000);
}

class HelperConnectionContract : public testing::Test {
protected:
    std::unique_ptr<HelperConnection>
    connect(const QString& name = QLatin1StringView(HelperConstants::machServiceName)) {
        auto connection = m_helper.connection(name);
        connection->setInvalidationHandler([ends = m_ends] { ++ends->invalidations; });
        return connection;
    }
    [[nodiscard]] auto counted() const {
        return [ends = m_ends](const auto&...) { ++ends->replies; };
    }
    /// Counts a reply, and keeps its value.
    template <class Value>
    [[nodiscard]] auto kept(std::shared_ptr<Value> value) const {
        return [ends = m_ends, value = std::move(value)](Value reply) {
            *value = std::move(reply);
            ++ends->replies;
        };
    }
    [[nodiscard]] HelperConnection::ErrorHandler failed() const {
        return [ends = m_ends](const QString& description) {
            EXPECT_FALSE(description.isEmpty());
            ++ends->errors;
        };
    }
    [[nodiscard]] bool haveEnded(int calls) const {
        return waitFor([&] { return m_ends->calls() == calls; });
    }

    ThisSystem::Helper m_helper;
    std::shared_ptr<Ends> m_ends = std::make_shared<Ends>();
};

TEST_F(HelperConnectionContract, FailsAndIsInvalidWithoutAService) {
    { const auto unused = connect(u"app.kestrowind.no-such-service"_s); }
    const auto connection = connect(u"app.kestrowind.no-such-service"_s);
    EXPECT_EQ(m_ends->invalidations, 0) << "nothing happens before the first call";
    connection->status(counted(), failed());
    EXPECT_TRUE(waitFor([&] { return m_ends->errors == 1 && m_ends->invalidations == 1; }));
    EXPECT_EQ(m_ends->replies, 0);
}

TEST_F(HelperConnectionContract, DeliversEachReplyInItsOwnType) {
    if (!m_helper.isInstalled())
        GTEST_SKIP() << "no helper is installed";
    const auto connection = connect();
    const auto document = std::make_shared<std::optional<QByteArray>>();
    connection->status(kept(document), failed());
    ASSERT_TRUE(haveEnded(1));
    ASSERT_TRUE(*document);
    EXPECT_TRUE(decodeHelperStatus((*document)->toStdString()));
    connection->releaseControl(counted(), failed());
    ASSERT_TRUE(haveEnded(2));

    if (ThisSystem::Helper::isExpendable) {
        const auto applied = std::make_shared<std::vector<double>>();
        connection->setTargets({2500.5, 2600}, kept(applied), failed());
        ASSERT_TRUE(haveEnded(3));
        EXPECT_EQ(applied->size(), 2U) << "one for each fan";
        connection->uninstall(counted(), failed());
        ASSERT_TRUE(haveEnded(4));
    }
    EXPECT_EQ(m_ends->errors, 0);
    EXPECT_EQ(m_ends->invalidations, 0);
}

TEST_F(HelperConnectionContract, ReachesANewHelperAtOnceAfterItsLastWasInterrupted) {
    if (!m_helper.isInstalled() || !ThisSystem::Helper::isExpendable)
        GTEST_SKIP() << "no helper is installed that may be killed";
    const auto connection = connect();
    connection->status(counted(), failed());
    ASSERT_TRUE(haveEnded(1));
    m_helper.kill();
    connection->status(counted(), failed());
    ASSERT_TRUE(haveEnded(2));
    EXPECT_EQ(m_ends->errors, 0) << "no call waited when the helper went";

    m_helper.freeze();
    connection->status(counted(), failed());
    connection->releaseControl(counted(), failed());
    m_helper.kill();
    ASSERT_TRUE(haveEnded(4));
    EXPECT_EQ(m_ends->errors, 2) << "two calls did";
    EXPECT_EQ(m_ends->invalidations, 0);
}

TEST_F(HelperConnectionContract, CallsNoHandlerOnceItIsGone) {
    if (!m_helper.isInstalled())
        GTEST_SKIP() << "no helper is installed";
    connect()->status(counted(), failed());
    const auto earlier = std::exchange(m_ends, std::make_shared<Ends>());
    // A whole call later everything that was under way would have arrived.
    const auto connection = connect();
    connection->status(counted(), failed());
    ASSERT_TRUE(waitFor([&] { return m_ends->replies == 1; }));
    EXPECT_EQ(earlier->calls() + earlier->invalidations, 0);
}

} // namespace
} // namespace kestrowind
