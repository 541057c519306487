#include "ThisSystem.h"

#include "Platform/UserDefaults.h"
#include "Support/QtPrinters.h"

#include <QSignalSpy>

namespace kestrowind {
namespace {

using namespace Qt::StringLiterals;

class UserDefaultsContract : public testing::Test {
protected:
    /// The defaults as the next start of the application finds them.
    UserDefaults nextStart() {
        return UserDefaults({}, [this] { return m_store.open(); });
    }

    ThisSystem::Defaults m_store;
};

TEST_F(UserDefaultsContract, KeepsEachTypeOverAStart) {
    UserDefaults defaults = nextStart();
    const QString text = u"Zürich, \"50 %\"/\\ 🌀"_s;
    defaults.setString(u"text"_s, text);
    defaults.setString(u"empty"_s, {});
    defaults.setStringArray(u"one"_s, {u"automatic"_s});
    defaults.setStringArray(u"many"_s, {u"automatic"_s, text, u"c"_s});
    defaults.setBoolean(u"yes"_s, true);
    defaults.setBoolean(u"no"_s, false);

    UserDefaults next = nextStart();
    next.registerDefault(u"no"_s, true);
    EXPECT_EQ(next.string(u"text"_s), text);
    EXPECT_EQ(next.string(u"empty"_s), QString());
    EXPECT_EQ(next.stringArray(u"one"_s), QStringList{u"automatic"_s});
    EXPECT_EQ(next.stringArray(u"many"_s), (QStringList{u"automatic"_s, text, u"c"_s}));
    EXPECT_TRUE(next.boolean(u"yes"_s));
    EXPECT_FALSE(next.boolean(u"no"_s)) << "stored before registered";
    EXPECT_EQ(next.string(u"absent"_s), std::nullopt);
}

TEST_F(UserDefaultsContract, TellsOfChangesOnceAndForgetsWhatIsRemoved) {
    UserDefaults defaults = nextStart();
    QSignalSpy changes(&defaults, &UserDefaults::changed);
    defaults.setBoolean(u"switch"_s, true);
    defaults.setBoolean(u"switch"_s, true);
    EXPECT_EQ(changes.size(), 1);
    EXPECT_TRUE(nextStart().boolean(u"switch"_s)) << "stored when the call returned";
    defaults.remove(u"switch"_s);
    EXPECT_EQ(changes.size(), 2);
    EXPECT_FALSE(nextStart().boolean(u"switch"_s));
}

} // namespace
} // namespace kestrowind
