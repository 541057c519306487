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
    for (const auto& [text, name] : {
             std::pair(u"../../etc/passwd"_s, u"-..-etc-passwd"_s),
             {u"A:\\B|C*?\"<>"_s, u"A--B-C-----"_s},
             {u" .hidden\nname "_s, u"hidden name"_s},
             {u"..."_s, u"Kestrowind"_s},
             {QString(300, u'x'), QString(60, u'x')},
             {QString(59, u'x') + u"🌀"_s, QString(59, u'x')},
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
    /// Until there is a dialog: the one before is deleted by the event loop.
    void ask(bool forSave) {
        const FileDialogs::Kind kind{u"Table"_s, u"csv"_s};
        const auto take = [this](const QString& path) {
            chosen.append(path);
            return !path.contains(u"bad"_s);
        };
        ASSERT_TRUE(QTest::qWaitFor([&] {
            if (forSave)
                dialogs.askForSave(*owner, u"Save"_s, kind, u"a/b"_s, take);
            else
                dialogs.askForOpen(*owner, u"Open"_s, kind, take);
            return dialog() != nullptr;
        }));
    }
    static void choose(const QString& path) {
        dialog()->selectFile(path);
        static_cast<QDialog*>(dialog())->accept();
        ASSERT_TRUE(isClosed());
    }

    QTemporaryDir folder;
    WidgetFileDialogs dialogs;
    std::unique_ptr<QObject> owner = std::make_unique<QObject>();
    QStringList chosen;
};

TEST_F(WidgetFileDialogsTest, TellsWhatWasChosenAndNothingWhenCancelled) {
    ask(true);
    EXPECT_EQ(dialog()->acceptMode(), QFileDialog::AcceptSave);
    EXPECT_TRUE(dialog()->selectedFiles().front().endsWith(u"/a-b.csv"_s));
    QFileDialog* const first = dialog();
    ask(true);
    EXPECT_EQ(dialog(), first) << "one at a time";
    first->setDirectory(folder.path());
    choose(folder.filePath(u"mine"_s));
    EXPECT_EQ(chosen, QStringList{folder.filePath(u"mine.csv"_s)}) << "with the suffix";

    QFile there(folder.filePath(u"there.csv"_s));
    ASSERT_TRUE(there.open(QIODevice::WriteOnly));
    ask(false);
    EXPECT_EQ(dialog()->directory().absolutePath(), folder.path()) << "where the last file was";
    choose(there.fileName());
    EXPECT_EQ(chosen.back(), there.fileName());

    const QTemporaryDir other;
    ask(true);
    choose(other.filePath(u"bad"_s));

    ask(true);
    EXPECT_EQ(dialog()->directory().absolutePath(), folder.path()) << "nothing came of the other";
    dialog()->reject();
    ASSERT_TRUE(isClosed());
    EXPECT_EQ(chosen.size(), 3);

    folder.remove();
    ask(true);
    EXPECT_TRUE(dialog()->directory().exists());
    owner.reset();
    EXPECT_TRUE(isClosed()) << "it goes with its owner";
    EXPECT_EQ(chosen.size(), 3);
}

} // namespace
} // namespace kestrowind
