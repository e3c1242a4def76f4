#include <gtest/gtest.h>

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QHelpEngine>
#include <QHelpFilterEngine>
#include <QHelpIndexWidget>
#include <QHelpLink>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRegularExpression>
#include <QSet>
#include <QTemporaryDir>
#include <QTest>
#include <QTextBlock>
#include <QTextBrowser>
#include <QTextDocumentFragment>
#include <QTreeView>
#include <QXmlStreamReader>

#include "base/dates.h"
#include "biometry/dating.h"
#include "biometry/medians.h"
#include "biometry/reference.h"
#include "fakes/world.h"
#include "qt/help_page.h"
#include "qt/help_search.h"
#include "qt/real_help.h"
#include "shell/program.h"

namespace qt {
namespace {

using biometry::Measure;

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

/// The heading of the page in view.
QString heading() {
    return pages()->document()->begin().text().replace(QChar::Nbsp, u' ');
}

QLineEdit* field(const QString& name) {
    for (auto* found : helpWindow()->findChildren<QLineEdit*>()) {
        if (found->accessibleName() == name) {
            return found;
        }
    }
    return nullptr;
}

QWidget* helpWindowOf(const QWidget& parent) {
    return parent.findChild<QWidget*>("VERANOX.HLP");
}

/// A printer whose one sheet is an image, 144 pixels an inch on A4.
class ImagePrinter final : public ports::Printer {
public:
    explicit ImagePrinter(QImage& sheet) : sheet_(sheet) {}
    ports::PageGeometry geometry() const override {
        return {.width = 11906, .height = 16838, .dpiX = 144, .dpiY = 144};
    }
    std::unique_ptr<ports::PrintJob> open(const QString&) override { return std::make_unique<Job>(sheet_); }

private:
    class Job final : public ports::PrintJob {
    public:
        explicit Job(QImage& sheet) : painter_(&sheet) {}
        QPainter& painter() override { return painter_; }
        void newPage() override {}

    private:
        QPainter painter_;
    };

    QImage& sheet_;
};

/// The addresses that a page leads to, of links ("href") or pictures ("src").
QStringList targetsIn(const QByteArray& page, const QString& attribute) {
    QStringList targets;
    QXmlStreamReader reader(page);
    while (!reader.atEnd()) {
        if (reader.readNext() == QXmlStreamReader::StartElement && reader.attributes().hasAttribute(attribute)) {
            targets << reader.attributes().value(attribute).toString();
        }
    }
    return targets;
}

/// The manual as it is built.
class Manual : public ::testing::Test {
protected:
    Manual() {
        for (const QFileInfo& file : QDir(QStringLiteral(VERANOX_HELP_PAGES)).entryInfoList({"*.html"})) {
            pages << help.contents().resolved(QUrl(file.fileName()));
        }
    }

    QByteArray page(const QString& name) const { return help.page(help.contents().resolved(QUrl(name))); }

    bool leadsSomewhere(const QUrl& target) const {
        const QByteArray page = help.page(target.adjusted(QUrl::RemoveFragment));
        return !page.isEmpty() && (!target.hasFragment() || targetsIn(page, "name").contains(target.fragment()));
    }

    HelpFile help{kHelp};
    QList<QUrl> pages;
};

TEST_F(Manual, IsMadeOfWellFormedPagesInFrench) {
    ASSERT_GE(pages.size(), 40);
    for (const QUrl& address : pages) {
        QXmlStreamReader reader(help.page(address));
        QStringList titles, headings;
        while (!reader.atEnd()) {
            if (reader.readNext() != QXmlStreamReader::StartElement) {
                continue;
            }
            if (reader.name() == u"html") {
                EXPECT_EQ(reader.attributes().value("lang"), u"fr") << address.toString().toStdString();
            } else if (reader.name() == u"title") {
                titles << reader.readElementText();
            } else if (reader.name() == u"h1") {
                headings << reader.readElementText();
            }
        }
        EXPECT_FALSE(reader.hasError()) << address.toString().toStdString() << reader.lineNumber()
                                        << reader.errorString().toStdString();
        EXPECT_EQ(titles.size(), 1) << address.toString().toStdString();
        EXPECT_EQ(titles, headings) << address.toString().toStdString();
    }
}

TEST_F(Manual, NamesEachPageOnceInItsContents) {
    const QList<QUrl> chapters = help.chapters();
    EXPECT_EQ(QSet<QUrl>(chapters.begin(), chapters.end()).size(), chapters.size());
    EXPECT_EQ(QSet<QUrl>(chapters.begin(), chapters.end()), QSet<QUrl>(pages.begin(), pages.end()));
}

TEST_F(Manual, HasTheSameChaptersInItsTreeAsInItsContents) {
    QList<QUrl> inTheTree;
    QFile project(QStringLiteral(VERANOX_HELP_PAGES "/veranox.qhp"));
    ASSERT_TRUE(project.open(QIODevice::ReadOnly));
    QXmlStreamReader reader(&project);
    while (!reader.atEnd()) {
        if (reader.readNext() == QXmlStreamReader::StartElement && reader.name() == u"section") {
            const QUrl page = help.contents().resolved(QUrl(reader.attributes().value("ref").toString()));
            // A part of the manual leads to its first chapter.
            if (inTheTree.isEmpty() || inTheTree.last() != page) {
                inTheTree << page;
            }
        }
    }
    EXPECT_EQ(inTheTree, help.chapters());
}

TEST_F(Manual, LeadsNowhereByNoLinkAndLacksNoPicture) {
    int links = 0, pictures = 0;
    for (const QUrl& address : pages) {
        const QByteArray page = help.page(address);
        for (const QString& link : targetsIn(page, "href")) {
            EXPECT_TRUE(leadsSomewhere(address.resolved(QUrl(link)))) << link.toStdString();
            ++links;
        }
        for (const QString& picture : targetsIn(page, "src")) {
            const QImage image = QImage::fromData(help.page(address.resolved(QUrl(picture))));
            EXPECT_FALSE(image.isNull()) << picture.toStdString();
            ++pictures;
        }
    }
    EXPECT_GT(links, 100);
    EXPECT_GT(pictures, 20);
}

TEST_F(Manual, LeadsToAPageByEachWordOfItsIndex) {
    const QHelpEngine& engine = help.engine();
    const QStringList keywords = engine.filterEngine()->indices(QString());
    EXPECT_GT(keywords.size(), 100);
    for (const QString& keyword : keywords) {
        const QList<QHelpLink> found = engine.documentsForKeyword(keyword, QString());
        EXPECT_FALSE(found.isEmpty()) << keyword.toStdString();
        for (const QHelpLink& link : found) {
            EXPECT_TRUE(leadsSomewhere(link.url)) << keyword.toStdString();
        }
    }
}

TEST_F(Manual, HasAChapterWithAPictureForEachWindow) {
    fakes::World world;
    shell::Program program(world.machine);
    for (const QString& window : program.desk().known()) {
        const QUrl chapter = help.chapterOf(window);
        EXPECT_TRUE(help.chapters().contains(chapter)) << window.toStdString();
        EXPECT_FALSE(targetsIn(help.page(chapter), "src").isEmpty()) << window.toStdString();
    }
}

TEST_F(Manual, HasNoPictureThatNoPageShows) {
    QStringList shown;
    for (const QUrl& address : pages) {
        shown << targetsIn(help.page(address), "src");
    }
    for (const QFileInfo& file : QDir(QStringLiteral(VERANOX_HELP_PAGES "/images")).entryInfoList(QDir::Files)) {
        EXPECT_TRUE(shown.contains("images/" + file.fileName())) << file.fileName().toStdString();
        EXPECT_LE(file.size(), 60 * 1024) << file.fileName().toStdString();
    }
}

TEST_F(Manual, ExplainsEachErrorUnderItsNumberWithItsText) {
    const QString page = QTextDocumentFragment::fromHtml(QString::fromUtf8(this->page("erreurs.html"))).toPlainText();
    int explained = 0;
    for (int number = 1; number < 30000; ++number) {
        const QString text = base::errorText(base::ErrorNumber(number));
        if (text != u"Erreur inattendue.") {
            EXPECT_TRUE(page.contains(QRegularExpression(
                QStringLiteral("^%1\\s+«\\s%2\\s»$").arg(number).arg(QRegularExpression::escape(text)),
                QRegularExpression::MultilineOption | QRegularExpression::UseUnicodePropertiesOption)))
                << number << text.toStdString();
            ++explained;
        }
    }
    EXPECT_GE(explained, 28);
}

// The figures of a table row of a page, as texts.
QList<QStringList> rowsOf(const QByteArray& page, const QString& underHeading) {
    QList<QStringList> rows;
    QXmlStreamReader reader(page);
    QString heading;
    while (!reader.atEnd()) {
        if (reader.readNext() != QXmlStreamReader::StartElement) {
            continue;
        }
        if (reader.name() == u"h2") {
            heading = reader.readElementText(QXmlStreamReader::IncludeChildElements);
        } else if (heading == underHeading && reader.name() == u"tr") {
            rows << QStringList();
        } else if (heading == underHeading && reader.name() == u"td") {
            rows.last() << reader.readElementText().simplified();
        }
    }
    rows.removeIf([](const QStringList& row) { return row.isEmpty(); });
    return rows;
}

// The order of the columns on the pages.
constexpr std::array kColumns{Measure::Bip, Measure::Cc,   Measure::Dat, Measure::Ca,
                              Measure::Fem, Measure::Pied, Measure::Hum, Measure::Cer};

TEST_F(Manual, PrintsTheMediansThatTheProgramUses) {
    const QList<QStringList> rows = rowsOf(page("poids.html"), "Les médianes");
    ASSERT_EQ(rows.size(), 29);
    for (const QStringList& row : rows) {
        const auto medians = biometry::medians(row.first().toInt());
        ASSERT_TRUE(medians);
        QStringList own{row.first()};
        for (const Measure measure : kColumns) {
            const QString& median = (*medians)[biometry::indexOf(measure)];
            own << (median.isEmpty() ? QStringLiteral("–") : median);
        }
        EXPECT_EQ(row, own);
    }
}

QString cellOf(const biometry::tables::Range& range) {
    if (range.isEmpty()) {
        return QStringLiteral("–");
    }
    if (range.first <= 0) {
        return QStringLiteral("≤ %1").arg(range.last);
    }
    if (range.last > 1000) {
        return QStringLiteral("≥ %1").arg(range.first);
    }
    return range.first == range.last ? QString::number(range.first)
                                     : QStringLiteral("%1 à %2").arg(range.first).arg(range.last);
}

TEST_F(Manual, PrintsThePercentileTablesThatTheProgramUses) {
    const std::pair<Measure, QString> kTables[] = {{Measure::Bip, "Bipariétal (mm)"},
                                                   {Measure::Cc, "Circonférence céphalique (mm)"},
                                                   {Measure::Dat, "Diamètre abdominal transverse (mm)"},
                                                   {Measure::Ca, "Circonférence abdominale (mm)"},
                                                   {Measure::Fem, "Fémur (mm)"},
                                                   {Measure::Hum, "Humérus (mm)"},
                                                   {Measure::Pied, "Pied (mm), autour de la médiane"},
                                                   {Measure::Pied, "Pied (mm), semaines 24 à 38"},
                                                   {Measure::Cer, "Cervelet (mm)"}};
    int printed = 0;
    for (const auto& [measure, heading] : kTables) {
        for (const QStringList& row : rowsOf(page("tables-percentiles.html"), heading)) {
            const auto reference = biometry::referenceRow(measure, row.first().toInt());
            ASSERT_TRUE(reference) << heading.toStdString() << row.first().toStdString();
            QStringList own{row.first()};
            for (const biometry::tables::Range& range : reference->classes) {
                own << cellOf(range);
            }
            EXPECT_EQ(row, own) << heading.toStdString();
            ++printed;
        }
    }
    // Bip, Dat, Fem and Hum from 13 to 41, Cc from 16 and Ca from 15 to 40, Pied from 13 to 40, Cer from 15 to 37.
    EXPECT_EQ(printed, 4 * 29 + 25 + 26 + 28 + 23);
}

TEST_F(Manual, PrintsTheDatingTableThatTheProgramUses) {
    const QDate today(2002, 6, 14);
    int printed = 0;
    for (const QStringList& row : rowsOf(page("datation.html"), "La date échographique d’après la LCC")) {
        for (int column = 0; column < row.size(); column += 2) {
            const int days = row.at(column + 1) == u"–" ? 0 : row.at(column + 1).toInt();
            EXPECT_EQ(biometry::startFromCrownRump(row.at(column), today).text(),
                      base::shortDate(today.addDays(14 - days)))
                << row.at(column).toStdString();
            ++printed;
        }
    }
    EXPECT_EQ(printed, 85);
}

class HelpSearching : public Manual {
protected:
    QStringList titlesOf(const QString& query) const {
        QStringList titles;
        for (const HelpHit& hit : search.find(query)) {
            titles << hit.title;
        }
        return titles;
    }

    HelpSearch search{help};
};

TEST_F(HelpSearching, FindsAWordWithItsAccentsAndWithout) {
    const QStringList found = titlesOf("cliché");
    EXPECT_TRUE(found.contains("La gestion des clichés"));
    EXPECT_TRUE(found.contains("L’album"));
    EXPECT_FALSE(found.contains("Le Superviseur"));
    EXPECT_EQ(titlesOf("CLICHE"), found);
}

TEST_F(HelpSearching, PutsThePagesThatHaveTheWordInTheirTitleFirst) {
    EXPECT_EQ(titlesOf("sauvegardes").value(0), "Les sauvegardes");
    EXPECT_EQ(titlesOf("superviseur").value(0), "Le Superviseur");
}

TEST_F(HelpSearching, WantsAllOfTheWords) {
    const QStringList both = titlesOf("follicules endomètre");
    EXPECT_TRUE(both.contains("Rédaction, gynécologie"));
    for (const QString& title : both) {
        EXPECT_TRUE(titlesOf("follicules").contains(title) && titlesOf("endomètre").contains(title));
    }
    EXPECT_EQ(titlesOf("follicules zzz"), QStringList());
}

TEST_F(HelpSearching, LooksForTheBeginningsOfWordsAlone) {
    EXPECT_TRUE(titlesOf("percent").contains("Les percentiles"));
    EXPECT_EQ(titlesOf("ercentiles"), QStringList());
}

TEST_F(HelpSearching, FindsAnApostropheAndALigatureHoweverTheyAreTyped) {
    EXPECT_FALSE(titlesOf("l'âge").isEmpty());
    EXPECT_EQ(titlesOf("l’âge"), titlesOf("l'âge"));
    EXPECT_FALSE(titlesOf("fœtus").isEmpty());
    EXPECT_EQ(titlesOf("fœtus"), titlesOf("foetus"));
}

TEST_F(HelpSearching, ShowsThePieceOfTextAroundTheWord) {
    const QList<HelpHit> hits = search.find("pourcelot");
    ASSERT_EQ(hits.size(), 1);
    EXPECT_TRUE(hits.first().extract.contains("indice de Pourcelot"));
    EXPECT_LT(hits.first().extract.size(), 150);
}

TEST_F(HelpSearching, FindsNothingForNothing) {
    EXPECT_TRUE(search.find(QString()).isEmpty());
    EXPECT_TRUE(search.find(" ?! ").isEmpty());
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
    fakes::Printers printers_;
    RealHelp help_{boxes_, printers_};
};

TEST_F(HelpViewer, OpensAtTheContents) {
    help_.showContents(kHelp);
    ASSERT_NE(helpWindow(), nullptr);
    EXPECT_TRUE(helpWindow()->isVisible());
    EXPECT_EQ(helpWindow()->windowTitle(), "Aide de VERANOX");
    EXPECT_EQ(heading(), "Aide de VERANOX");
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

TEST_F(HelpViewer, OpensAtTheChapterOfAWindow) {
    help_.showChapter(kHelp, "Form22");
    EXPECT_EQ(heading(), "Le Superviseur");
    help_.showChapter(kHelp, "Form9");
    EXPECT_EQ(heading(), "Les réponses mémorisées");
    help_.showChapter(kHelp, "Inconnue");
    EXPECT_EQ(heading(), "Aide de VERANOX");
}

TEST_F(HelpViewer, WalksThroughTheChaptersInTheirOrder) {
    help_.showContents(kHelp);
    EXPECT_FALSE(button("C&hapitre précédent")->isEnabled());
    button("Chapitre suiva&nt")->click();
    EXPECT_EQ(heading(), "Premier démarrage");
    button("Chapitre suiva&nt")->click();
    EXPECT_EQ(heading(), "Une journée au cabinet");
    button("C&hapitre précédent")->click();
    EXPECT_EQ(heading(), "Premier démarrage");
    pages()->setSource(HelpFile(kHelp).chapters().last());
    EXPECT_FALSE(button("Chapitre suiva&nt")->isEnabled());
}

TEST_F(HelpViewer, ShowsTheChaptersAsATreeThatFollowsThePage) {
    help_.showChapter(kHelp, "Form22");
    auto* tree = helpWindow()->findChild<QTreeView*>();
    QTRY_COMPARE(tree->currentIndex().data().toString(), QString("Le Superviseur"));
    const QModelIndex next = tree->indexBelow(tree->currentIndex());
    Q_EMIT tree->clicked(next);
    EXPECT_EQ(heading(), "Les sauvegardes");
}

TEST_F(HelpViewer, LeadsFromAWordOfTheIndexToItsPage) {
    help_.showContents(kHelp);
    auto* words = helpWindow()->findChild<QHelpIndexWidget*>();
    auto* filter = field("Mot de l'index");
    QTRY_VERIFY(words->model()->rowCount() > 100);
    filter->setText("restaurer une");
    QTest::keyClick(filter, Qt::Key_Return);
    EXPECT_EQ(heading(), "Contrôler et restaurer");
}

TEST_F(HelpViewer, ShowsThePagesFoundAndMarksTheWords) {
    help_.showContents(kHelp);
    field("Mots cherchés")->setText("pourcelot");
    auto* hits = helpWindow()->findChild<QListWidget*>();
    ASSERT_EQ(hits->count(), 1);
    QTest::keyClick(field("Mots cherchés"), Qt::Key_Return);
    EXPECT_EQ(heading(), "Rédaction, 2ème et 3ème trimestre");
    ASSERT_EQ(pages()->extraSelections().size(), 1);
    EXPECT_EQ(pages()->extraSelections().first().cursor.selectedText(), "Pourcelot");
    button("&Sommaire")->click();
    EXPECT_TRUE(pages()->extraSelections().isEmpty());
    field("Mots cherchés")->setText("zzzz");
    ASSERT_EQ(hits->count(), 1);
    EXPECT_EQ(hits->item(0)->text(), "Aucune page");
    QTest::keyClick(field("Mots cherchés"), Qt::Key_Return);
    EXPECT_EQ(heading(), "Aide de VERANOX");
}

TEST_F(HelpViewer, PrintsThePageInViewOnAsManySheetsAsItTakes) {
    printers_.page = fakes::kA4;
    help_.showChapter(kHelp, "Form15");
    button("I&mprimer...")->click();
    pages()->setSource(HelpFile(kHelp).contents().resolved(QUrl("tables-percentiles.html")));
    button("I&mprimer...")->click();
    ASSERT_EQ(printers_.jobs.size(), 2u);
    EXPECT_EQ(printers_.jobs[0].title, "Le message du 16 avril");
    EXPECT_EQ(printers_.jobs[0].pages, 1);
    EXPECT_GT(printers_.jobs[1].pages, 5);
    EXPECT_TRUE(printers_.jobs[0].ended && printers_.jobs[1].ended);
}

TEST_F(HelpViewer, PrintsNothingWhenNoPrinterIsChosenOrItRefuses) {
    help_.showContents(kHelp);
    printers_.accepts = false;
    button("I&mprimer...")->click();
    printers_.accepts = true;
    printers_.refuses = true;
    button("I&mprimer...")->click();
    EXPECT_EQ(printers_.dialogs, 2);
    EXPECT_TRUE(printers_.jobs.empty());
    EXPECT_TRUE(helpWindow()->isVisible());
}

TEST_F(HelpViewer, PrintsDarkOnWhiteWhateverThePalette) {
    const QPalette before = QApplication::palette();
    QPalette dark(Qt::black);
    dark.setColor(QPalette::Text, Qt::white);
    dark.setColor(QPalette::Base, Qt::black);
    QApplication::setPalette(dark);
    const HelpFile file(kHelp);
    HelpPage page(file);
    page.setSource(file.chapterOf("Form22"));
    QImage sheet(1190, 1684, QImage::Format_RGB32);
    sheet.fill(Qt::white);
    ImagePrinter printer(sheet);
    page.printOn(printer);
    QApplication::setPalette(before);
    int darkPixels = 0;
    for (int y = 0; y < sheet.height(); ++y) {
        for (int x = 0; x < sheet.width(); ++x) {
            darkPixels += qGray(sheet.pixel(x, y)) < 64 ? 1 : 0;
        }
    }
    // Text on paper: some ink, far from a black sheet.
    EXPECT_GT(darkPixels, 2000);
    EXPECT_LT(darkPixels, sheet.width() * sheet.height() / 4);
    EXPECT_EQ(sheet.pixelColor(2, 2), QColor(Qt::white));
}

TEST_F(HelpViewer, StandsInFrontOfAWindowThatTakesTheInputForItself) {
    help_.showContents(kHelp);
    auto modal = std::make_unique<QWidget>();
    modal->setWindowModality(Qt::ApplicationModal);
    modal->show();
    QApplication::setActiveWindow(modal.get());
    help_.showChapter(kHelp, "Form7");
    EXPECT_EQ(helpWindowOf(*modal)->parentWidget(), modal.get());
    EXPECT_TRUE(helpWindowOf(*modal)->isVisible());
    modal.reset();
    help_.showContents(kHelp);
    EXPECT_TRUE(helpWindow()->isVisible());
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
    RealHelp help(boxes_, printers_, folder_.path());
    help.showContents("/nulle/part/VERANOX.HLP");
    EXPECT_NE(helpWindow(), nullptr);
    EXPECT_TRUE(boxes_.said.isEmpty());
}

TEST_F(HelpViewer, GoesWithTheProgram) {
    {
        RealHelp help(boxes_, printers_);
        help.showContents(kHelp);
        ASSERT_NE(helpWindow(), nullptr);
    }
    EXPECT_EQ(helpWindow(), nullptr);
}

}  // namespace
}  // namespace qt
