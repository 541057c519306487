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

template <class Helper>
class HelperConnectionContract : public testing::Test {
protected:
    std::unique_ptr<HelperConnection>
    connect(const QString& name = QLatin1StringView(HelperConstants::machServiceName)) {
        auto connection = m_helper.connection(name);
        connection->setInvalidationHandler([ends = m_ends] { ++ends->invalidations; });
        return connection;
    }
    template <class... Values>
    HelperConnection::Reply<Values...> counted() {
        return [ends = m_ends](const Values&...) { ++ends->replies; };
    }
    HelperConnection::ErrorHandler failed() {
        return [ends = m_ends](const QString& description) {
            EXPECT_FALSE(description.isEmpty());
            ++ends->errors;
        };
    }

    Helper m_helper;
    std::shared_ptr<Ends> m_ends = std::make_shared<Ends>();
};

TYPED_TEST_SUITE(HelperConnectionContract, ThisSystem::Helpers);

TYPED_TEST(HelperConnectionContract, FailsAndIsInvalidWithoutAService) {
    { const auto unused = this->connect(u"app.kestrowind.no-such-service"_s); }
    const auto connection = this->connect(u"app.kestrowind.no-such-service"_s);
    EXPECT_EQ(this->m_ends->invalidations, 0) << "nothing happens before the first call";
    connection->status(this->template counted<std::optional<QByteArray>>(), this->failed());
    EXPECT_TRUE(
        waitFor([&] { return this->m_ends->errors == 1 && this->m_ends->invalidations == 1; }));
    EXPECT_EQ(this->m_ends->replies, 0);
}

TYPED_TEST(HelperConnectionContract, DeliversEachReplyInItsOwnType) {
    if (!this->m_helper.isInstalled())
        GTEST_SKIP() << "no helper is installed";
    const auto connection = this->connect();
    auto document = std::make_shared<std::optional<QByteArray>>();
    connection->status(
        [document, ends = this->m_ends](std::optional<QByteArray> reply) {
            *document = std::move(reply);
            ++ends->replies;
        },
        this->failed());
    ASSERT_TRUE(waitFor([&] { return this->m_ends->calls() == 1; }));
    ASSERT_EQ(this->m_ends->errors, 0);
    ASSERT_TRUE(*document);
    EXPECT_TRUE(decodeHelperStatus((*document)->toStdString()));
    connection->releaseControl(this->template counted<>(), this->failed());
    ASSERT_TRUE(waitFor([&] { return this->m_ends->calls() == 2; }));

    if (TypeParam::isExpendable) {
        auto applied = std::make_shared<std::vector<double>>();
        connection->setTargets(
            {2500.5, 2600},
            [applied, ends = this->m_ends](std::vector<double> reply) {
                *applied = std::move(reply);
                ++ends->replies;
            },
            this->failed());
        ASSERT_TRUE(waitFor([&] { return this->m_ends->calls() == 3; }));
        EXPECT_EQ(applied->size(), 2U) << "one for each fan";
        connection->uninstall(this->template counted<bool>(), this->failed());
        ASSERT_TRUE(waitFor([&] { return this->m_ends->calls() == 4; }));
    }
    EXPECT_EQ(this->m_ends->errors, 0);
    EXPECT_EQ(this->m_ends->invalidations, 0);
}

TYPED_TEST(HelperConnectionContract, ReachesANewHelperAfterItsLastHasEnded) {
    if (!this->m_helper.isInstalled() || !TypeParam::isExpendable)
        GTEST_SKIP() << "no helper is installed that may be shut down";
    const auto connection = this->connect();
    connection->shutDown(this->template counted<>(), this->failed());
    ASSERT_TRUE(waitFor([&] { return this->m_ends->calls() == 1; }));
    EXPECT_EQ(this->m_ends->errors, 0);
    // The first call may still meet the end of the old one.
    for (int calls = 2; calls <= 3; ++calls) {
        connection->status(this->template counted<std::optional<QByteArray>>(), this->failed());
        ASSERT_TRUE(waitFor([&] { return this->m_ends->calls() == calls; }));
    }
    EXPECT_GE(this->m_ends->replies, 2);
    EXPECT_EQ(this->m_ends->invalidations, 0);
}

TYPED_TEST(HelperConnectionContract, CallsNoHandlerOnceItIsGone) {
    if (!this->m_helper.isInstalled())
        GTEST_SKIP() << "no helper is installed";
    const auto earlier = std::make_shared<Ends>();
    {
        const auto connection =
            this->m_helper.connection(QLatin1StringView(HelperConstants::machServiceName));
        connection->setInvalidationHandler([earlier] { ++earlier->invalidations; });
        connection->status([earlier](auto) { ++earlier->replies; },
                           [earlier](auto) { ++earlier->errors; });
    }
    // A whole call later everything that was under way would have arrived.
    const auto connection = this->connect();
    connection->status(this->template counted<std::optional<QByteArray>>(), this->failed());
    ASSERT_TRUE(waitFor([&] { return this->m_ends->replies == 1; }));
    EXPECT_EQ(earlier->calls() + earlier->invalidations, 0);
}

} // namespace
} // namespace kestrowind
