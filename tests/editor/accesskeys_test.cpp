// The letters that choose an entry of a menu: each of a menu chooses one.
#include "tests/editor/windowfixture.h"

#include <QKeySequence>
#include <QMenu>
#include <QMenuBar>
#include <QTranslator>

namespace vorlane::editor {
namespace {

class AccessKeysTest : public WindowFixture {
protected:
    // The entries of a menu, and of those in it, whose letter another entry has too.
    static QStringList Doubles(const QList<QAction*>& entries) {
        QStringList doubles;
        QMap<QString, QString> known;
        for (const QAction* entry : entries) {
            const QString letter = QKeySequence::mnemonic(entry->text()).toString();
            if (!letter.isEmpty() && known.contains(letter)) doubles += known[letter] + " / " + entry->text();
            known[letter] = entry->text();
            if (entry->menu() != nullptr) doubles += Doubles(entry->menu()->actions());
        }
        return doubles;
    }
    std::string DoublesOfTheBar() { return Doubles(window_->menuBar()->actions()).join("; ").toStdString(); }
};

TEST_F(AccessKeysTest, NoFrenchEntryHasTheLetterOfAnother) {
    ASSERT_TRUE(OpenPictures("ab"));
    ASSERT_FALSE(window_->menuBar()->actions().isEmpty());
    EXPECT_EQ(DoublesOfTheBar(), "");
}

TEST_F(AccessKeysTest, NoEnglishEntryHasTheLetterOfAnother) {
    QTranslator english;
    ASSERT_TRUE(english.load("vorlane_en", ":/editor/translations"));
    QCoreApplication::installTranslator(&english);
    QCoreApplication::processEvents();
    ASSERT_EQ(window_->menuBar()->actions().value(0)->text(), "&File");
    EXPECT_EQ(DoublesOfTheBar(), "");
    QCoreApplication::removeTranslator(&english);
    QCoreApplication::processEvents();
}

}  // namespace
}  // namespace vorlane::editor
