#include "Support/QtPrinters.h"
#include "UI/FileDialogs/SafeFileName.h"
#include "UI/FileDialogs/WidgetFileDialogs.h"

#include <QApplication>
#include <QFile>
#include <QFileDialog>
#include <QTemporaryDir>
#include <QTest>
#include <gmock/gmock.h>

namespace kestrowind {
namespace {

using namespace Qt::StringLiterals;

TEST(SafeFileName, IsOneEveryFileSystemTakes) {
    struct Row {
        QString text, name;
    };
    for (const auto& [text, name] : {
             Row{u"Quiet night"_s, u"Quiet night"_s},
             Row{u"../../etc/passwd"_s, u"-..-etc-passwd"_s},
             Row{u"A:\\B|C*?\"<>"_s, u"A--B-C-----"_s},
             Row{u" .hidden\nname "_s, u"hidden name"_s},
             Row{u"..."_s, u"Kestrowind"_s},
             Row{u"\u0000\u0007"_s, u"Kestrowind"_s},
             Row{QString(300, u'x'), QString(60, u'x')},
             Row{QString(59, u'x') + u"🌀"_s, QString(59, u'x')},
         })
        EXPECT_EQ(safeFileName(text), name);
}

class WidgetFileDialogsTest : public testing::Test {
protected:
    WidgetFileDialogsTest() { QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs); }

    static QFileDialog* dialog() {
        for (QWidget* widget : QApplication::topLevelWidgets()) {
            auto* found = qobject_cast<QFileDialog*>(widget);
            if (found && found->isVisible())
                return found;
        }
        return nullptr;
    }
    static bool isClosed() {
        return QTest::qWaitFor([] { return dialog() == nullptr; });
    }
    void askForSave() {
        dialogs.askForSave(*owner, u"Save"_s, {u"Table"_s, u"csv"_s}, u"a/b"_s,
                           [this](const QString& path) { chosen.append(path); });
    }

    QTemporaryDir folder;
    WidgetFileDialogs dialogs;
    std::unique_ptr<QObject> owner = std::make_unique<QObject>();
    QStringList chosen;
};

TEST_F(WidgetFileDialogsTest, TellsWhatWasChosenAndNothingWhenCancelled) {
    askForSave();
    ASSERT_NE(dialog(), nullptr);
    EXPECT_EQ(dialog()->acceptMode(), QFileDialog::AcceptSave);
    EXPECT_TRUE(dialog()->selectedFiles().front().endsWith(u"/a-b.csv"_s));
    QFileDialog* const first = dialog();
    askForSave();
    EXPECT_EQ(dialog(), first) << "one at a time";
    first->setDirectory(folder.path());
    first->selectFile(folder.filePath(u"mine"_s));
    static_cast<QDialog*>(first)->accept();
    EXPECT_EQ(chosen, QStringList{folder.filePath(u"mine.csv"_s)}) << "with the suffix";
    ASSERT_TRUE(isClosed());

    QFile there(folder.filePath(u"there.csv"_s));
    ASSERT_TRUE(there.open(QIODevice::WriteOnly));
    // The first dialog is deleted by the event loop.
    ASSERT_TRUE(QTest::qWaitFor([this] {
        dialogs.askForOpen(*owner, u"Open"_s, {u"Table"_s, u"csv"_s},
                           [this](const QString& path) { chosen.append(path); });
        return dialog() != nullptr;
    }));
    EXPECT_EQ(dialog()->directory().absolutePath(), folder.path()) << "where the last file was";
    dialog()->selectFile(there.fileName());
    static_cast<QDialog*>(dialog())->accept();
    EXPECT_EQ(chosen.back(), there.fileName());
    ASSERT_TRUE(isClosed());

    chosen.clear();
    ASSERT_TRUE(QTest::qWaitFor([this] {
        askForSave();
        return dialog() != nullptr;
    }));
    dialog()->reject();
    ASSERT_TRUE(isClosed());
    EXPECT_EQ(chosen, QStringList());
}

TEST_F(WidgetFileDialogsTest, GoesWithItsOwner) {
    askForSave();
    ASSERT_NE(dialog(), nullptr);
    owner.reset();
    EXPECT_TRUE(isClosed());
    EXPECT_EQ(chosen, QStringList());
}

} // namespace
} // namespace kestrowind

int main(int argc, char* argv[]) {
    testing::InitGoogleMock(&argc, argv);
    // CTest lists the cases outside of their environment.
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    return RUN_ALL_TESTS();
}
