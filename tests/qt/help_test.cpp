#include <gtest/gtest.h>

#include <QApplication>
#include <QFile>
#include <QPushButton>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>
#include <QTextBrowser>

#include "fakes/world.h"
#include "qt/real_help.h"

namespace qt {
namespace {

const QString kHelp = QStringLiteral(VERANOX_HELP);

QWidget* helpWindow() {
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (window->objectName() == u"VERANOX.HLP") {
            return window;
        }
    }
    return nullptr;
}

void letGo() {
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

QPushButton* button(const QString& caption) {
    for (auto* found : helpWindow()->findChildren<QPushButton*>()) {
        if (found->text() == caption) {
            return found;
        }
    }
    return nullptr;
}

QTextBrowser* pages() {
    return helpWindow()->findChild<QTextBrowser*>();
}

TEST(HelpFile, HoldsAContentsPageFromWhichEachPageIsReachedAndNoLinkLeadsNowhere) {
    const HelpFile help(kHelp);
    ASSERT_TRUE(help.isReadable());
    static const QRegularExpression kLink(QStringLiteral("href=\"([^\"]+)\""));
    QList<QUrl> reached{help.contents()};
    for (qsizetype i = 0; i < reached.size(); ++i) {
        const QString page = QString::fromUtf8(help.page(reached[i]));
        EXPECT_TRUE(page.contains("<html lang=\"fr\">")) << reached[i].toString().toStdString();
        for (const auto& link : kLink.globalMatch(page)) {
            const QUrl target = reached[i].resolved(QUrl(link.captured(1)));
            if (!reached.contains(target)) {
                reached << target;
            }
        }
    }
    EXPECT_EQ(reached.size(), 6);
}

TEST(HelpFile, IsNotReadableWhenItIsForeignEmptyOrMissing) {
    const QTemporaryDir folder;
    const QString path = folder.filePath("VERANOX.HLP");
    EXPECT_FALSE(HelpFile(path).isReadable());
    EXPECT_FALSE(QFile::exists(path));
    for (const QByteArray& content : {QByteArray(), QByteArray("une lettre\n").repeated(500)}) {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
        file.write(content);
        file.close();
        EXPECT_FALSE(HelpFile(path).isReadable());
    }
}

class HelpViewer : public ::testing::Test {
protected:
    ~HelpViewer() override { letGo(); }

    QTemporaryDir folder_;
    fakes::Boxes boxes_;
    RealHelp help_{boxes_};
};

TEST_F(HelpViewer, OpensAtTheContents) {
    help_.showContents(kHelp);
    ASSERT_NE(helpWindow(), nullptr);
    EXPECT_TRUE(helpWindow()->isVisible());
    EXPECT_EQ(helpWindow()->windowTitle(), "Aide de VERANOX");
    EXPECT_TRUE(pages()->toPlainText().contains("Sommaire"));
    EXPECT_TRUE(boxes_.said.isEmpty());
}

TEST_F(HelpViewer, FollowsLinksBackAndForth) {
    help_.showContents(kHelp);
    EXPECT_FALSE(button("&Précédent")->isEnabled());
    pages()->setSource(QUrl("superviseur.html"));
    EXPECT_TRUE(pages()->toPlainText().startsWith("Le Superviseur"));
    button("&Précédent")->click();
    EXPECT_TRUE(pages()->toPlainText().startsWith("Aide de VERANOX"));
    button("Sui&vant")->click();
    EXPECT_TRUE(pages()->toPlainText().startsWith("Le Superviseur"));
    button("&Sommaire")->click();
    EXPECT_TRUE(pages()->toPlainText().startsWith("Aide de VERANOX"));
}

TEST_F(HelpViewer, ComesBackToTheContentsInItsOneWindow) {
    help_.showContents(kHelp);
    QWidget* first = helpWindow();
    pages()->setSource(QUrl("menu.html"));
    help_.showContents(kHelp);
    EXPECT_EQ(helpWindow(), first);
    EXPECT_TRUE(pages()->toPlainText().startsWith("Aide de VERANOX"));
}

TEST_F(HelpViewer, IsDestroyedByItsClosing) {
    for (const QStringView way : {u"frame", u"button", u"Escape"}) {
        help_.showContents(kHelp);
        ASSERT_NE(helpWindow(), nullptr);
        if (way == u"frame") {
            helpWindow()->close();
        } else if (way == u"button") {
            button("&Fermer")->click();
        } else {
            QApplication::setActiveWindow(helpWindow());
            QTest::keyClick(pages(), Qt::Key_Escape);
        }
        letGo();
        EXPECT_EQ(helpWindow(), nullptr) << way.toString().toStdString();
    }
}

TEST_F(HelpViewer, TellsThatTheFileIsMissing) {
    help_.showContents(folder_.filePath("VERANOX.HLP"));
    EXPECT_EQ(boxes_.said, QStringList({"Le fichier d'aide " + folder_.filePath("VERANOX.HLP") + " est introuvable."}));
    EXPECT_EQ(helpWindow(), nullptr);
}

TEST_F(HelpViewer, TellsThatTheFileCannotBeRead) {
    const QString path = folder_.filePath("VERANOX.HLP");
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("?");
    file.close();
    help_.showContents(path);
    EXPECT_EQ(boxes_.said, QStringList({"Le fichier d'aide " + path + " ne peut pas être lu."}));
    EXPECT_EQ(helpWindow(), nullptr);
}

TEST_F(HelpViewer, AlsoLooksWhereTheProgramWasInstalled) {
    ASSERT_TRUE(QFile::copy(kHelp, folder_.filePath("VERANOX.HLP")));
    RealHelp help(boxes_, folder_.path());
    help.showContents("/nulle/part/VERANOX.HLP");
    EXPECT_NE(helpWindow(), nullptr);
    EXPECT_TRUE(boxes_.said.isEmpty());
}

TEST_F(HelpViewer, GoesWithTheProgram) {
    {
        RealHelp help(boxes_);
        help.showContents(kHelp);
        ASSERT_NE(helpWindow(), nullptr);
    }
    EXPECT_EQ(helpWindow(), nullptr);
}

}  // namespace
}  // namespace qt
