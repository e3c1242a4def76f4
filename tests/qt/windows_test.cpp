#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QAbstractScrollArea>
#include <QAccessible>
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTest>
#include <QWheelEvent>
#include <algorithm>

#include "dossier/form4.h"
#include "exams/form8.h"
#include "fakes/world.h"
#include "heap.h"
#include "practice/practice.h"
#include "qt/form_window.h"
#include "qt/section.h"
#include "qt/stage.h"
#include "shell/program.h"
#include "store/schema.h"

namespace qt {
namespace {

using forms::Control;
using forms::Kind;

constexpr QSize kSmallScreen(1366, 768);

/// Counts what comes up on screen as a window of its own.
class TopLevels final : public QObject {
public:
    TopLevels() { qApp->installEventFilter(this); }
    QStringList seen;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        const auto* widget = qobject_cast<QWidget*>(watched);
        const bool onItsOwn = widget && widget->isWindow() && !widget->graphicsProxyWidget();
        if (event->type() == QEvent::Show && onItsOwn && !dynamic_cast<const FormWindow*>(widget)) {
            seen << QString::fromLatin1(widget->metaObject()->className()) + u' ' + widget->objectName();
        }
        return false;
    }
};

/// Rules that hold for every window of the program.
class AllWindows : public ::testing::Test {
protected:
    AllWindows() {
        practice::makeSample(world_.folder.path());
        for (const store::FileKind kind : store::kAllFiles) {
            world_.settings.put(store::settingName(kind), world_.folder.filePath(store::usualName(kind)));
        }
        program_.start();
        correctAnExam("MARTINEAU", "CHRISTELLE", &dossier::Form4::HlbCptDer, "Form7");
        correctAnExam("GUÉRIN", "SOPHIE", &dossier::Form4::HlbCptDer, "Form11");
        correctAnExam("ROSSIGNOL", {}, &dossier::Form4::Command5, "Form17");
        for (const QString& name : program_.desk().known()) {
            if (name != u"Form0") {
                program_.desk().act([&] { program_.desk().show(name); });
            }
        }
    }

    /// A correction window comes up on an exam alone: the last one of a patient, which `last` shows.
    void correctAnExam(const QString& surname, const QString& firstName, forms::Button dossier::Form4::*last,
                       const QString& correction) {
        program_.desk().act([&] {
            auto& dossier = program_.desk().at<dossier::Form4>();
            dossier.Text1.setText(surname);
            dossier.Text2.setText(firstName);
            (dossier.*last).click();
            program_.desk().show(correction);
            program_.desk().hide(correction);
        });
    }

    template <class Check>
    void forEachControl(Check check) {
        for (forms::Form* form : program_.desk().loaded()) {
            for (const Control* control : form->controls()) {
                check(*control, stage_.windowOf(*form)->widgetOf(*control),
                      (form->name() + u'.' + control->label()).toStdString());
            }
        }
    }

    TopLevels topLevels_;
    fakes::World world_;
    shell::Program program_{world_.machine};
    WindowStage stage_{program_.desk(), [] {}};
};

TEST_F(AllWindows, AreAllShown) {
    EXPECT_EQ(world_.boxes.reported, QList<int>());
    for (const QString& name : program_.desk().known()) {
        EXPECT_TRUE(name == u"Form0" || program_.desk().peek(name)) << name.toStdString();
    }
}

TEST_F(AllWindows, ShowEachOfTheirControls) {
    forEachControl([this](const Control& control, const QWidget* widget, const std::string& name) {
        const bool menu = control.kind() == Kind::Menu && stage_.windowOf(control.form())->actionOf(control);
        EXPECT_TRUE(widget || menu) << name;
    });
}

TEST_F(AllWindows, ComeUpWithNoPieceOfTheirsAsAWindowOfItsOwn) {
    EXPECT_EQ(topLevels_.seen, QStringList());
}

TEST_F(AllWindows, FitASmallScreen) {
    for (forms::Form* form : program_.desk().loaded()) {
        const QSize least = stage_.windowOf(*form)->minimumSizeHint();
        EXPECT_LE(least.width(), kSmallScreen.width()) << form->name().toStdString();
        EXPECT_LE(least.height(), kSmallScreen.height()) << form->name().toStdString();
    }
}

TEST_F(AllWindows, FitASmallScreenWhateverThePatientAndTheDeviceAreCalled) {
    program_.desk().act([&] {
        for (const char* name :
             {"Form5", "Form6", "Form7", "Form8", "Form10", "Form11", "Form16", "Form17", "Form18"}) {
            const forms::Form* form = program_.desk().peek(name);
            const auto say = [form](const char16_t* label, const QString& text) {
                static_cast<forms::Label*>(form->find(label))->setText(text);
            };
            say(u"LblNom", QStringLiteral("DE LA TOURELLE-MONTBRISSON EPOUSE VAN DER BRUGGHEN"));
            say(u"LblPrenom", QStringLiteral("MARIE-ANTOINETTE JOSEPHINE"));
            say(u"LblMachine", QStringLiteral("Orivanne 8 avec sonde abdominale et sonde vaginale"));
            say(u"LblDateCirc", QStringLiteral("mise en service le 12 septembre 2001"));
        }
    });
    for (forms::Form* form : program_.desk().loaded()) {
        EXPECT_LE(stage_.windowOf(*form)->minimumSizeHint().width(), kSmallScreen.width())
            << form->name().toStdString();
    }
}

TEST_F(AllWindows, KeepCaptionsOffTheEdgesOfTheirButtons) {
    constexpr int kLeastMargin = 8;
    forEachControl([](const Control&, const QWidget* widget, const std::string& name) {
        const auto* button = qobject_cast<const QPushButton*>(widget);
        if (button && button->isVisible()) {
            const int caption = button->fontMetrics().size(Qt::TextShowMnemonic, button->text()).width();
            EXPECT_GE(button->width(), caption + 2 * kLeastMargin) << name;
        }
    });
}

TEST_F(AllWindows, ShowAllLinesOfAPatientAtOnce) {
    constexpr int kLines = 29;
    auto& dossier = program_.desk().at<dossier::Form4>();
    program_.desk().act([&] { dossier.Text1.setText("MARTINEAU"); });
    ASSERT_EQ(dossier.LstCiv.count(), kLines);
    const auto* list = qobject_cast<const QListView*>(stage_.windowOf(dossier)->widgetOf(dossier.LstCiv));
    EXPECT_LE(kLines * list->sizeHintForRow(0), list->viewport()->height());
}

TEST_F(AllWindows, NameEachFieldForAScreenReader) {
    forEachControl([](const Control& control, const QWidget* widget, const std::string& name) {
        if (control.kind() == Kind::TextBox || control.kind() == Kind::ListBox || control.kind() == Kind::ComboBox) {
            ASSERT_NE(widget, nullptr) << name;
            EXPECT_FALSE(widget->accessibleName().isEmpty()) << name;
        }
    });
}

/// Whether a caption of this text leads to the field.
bool captioned(const QWidget* field, const QString& text) {
    const QList<QLabel*> labels = field->window()->findChildren<QLabel*>();
    return std::ranges::any_of(
        labels, [&](const QLabel* label) { return label->buddy() == field && label->text().remove(u'&') == text; });
}

TEST_F(AllWindows, CaptionEachFieldOfTheLaterExams) {
    const std::vector<std::pair<int, const char*>> once{{0, "BMI"},
                                                        {1, "Opérateur"},
                                                        {2, "DDR"},
                                                        {3, "DDG Théorique"},
                                                        {4, "DGUS"},
                                                        {5, "Modalité d'examen"},
                                                        {6, "Conditions d'examen"},
                                                        {7, "Indication"},
                                                        {8, "Utérus"},
                                                        {9, "Annexes"},
                                                        {10, "Douglas"},
                                                        {11, "Uterine D."},
                                                        {12, "Utérine G."},
                                                        {30, "Liq. Amnio"},
                                                        {31, "Placenta"},
                                                        {32, "Conclusion"}};
    const std::vector<const char*> ofEachFetus{"Présentation", "M.A.",       "Freq card",   "Bip",
                                               "C. Ceph",      "D.I.O.",     "Cervelet",    "Dat",
                                               "C. Abdo",      "Fémur (mm)", "Pied",        "Tibia",
                                               "Humerus",      "Os Nez",     "Morphologie", "Art. Omb. (I. Pourcelot)",
                                               "Cérebr. Ant."};
    std::vector<std::pair<int, const char*>> captions = once;
    for (const int first : {13, 33, 50}) {
        for (int i = 0; i < static_cast<int>(ofEachFetus.size()); ++i) {
            captions.emplace_back(first + i, ofEachFetus[static_cast<std::size_t>(i)]);
        }
    }
    ASSERT_EQ(captions.size(), 67U);
    for (const char* name : {"Form8", "Form11"}) {
        const forms::Form* form = program_.desk().peek(name);
        for (const auto& [index, caption] : captions) {
            const QWidget* field = stage_.windowOf(*form)->widgetOf(*form->find(u"Txt2T", index));
            EXPECT_TRUE(captioned(field, caption)) << name << ' ' << index;
            EXPECT_EQ(field->accessibleName(), caption) << name << ' ' << index;
        }
        const std::vector<std::pair<const char16_t*, const char*>> strip{{u"TxtNumEcho", "Echographie N°"},
                                                                         {u"txtDatexam", "Date de l'Examen"},
                                                                         {u"TxtPds", "Poids"},
                                                                         {u"TxtTaille", "Taille"}};
        for (const auto& [control, caption] : strip) {
            EXPECT_TRUE(captioned(stage_.windowOf(*form)->widgetOf(*form->find(control)), caption)) << name << caption;
        }
    }
}

TEST_F(AllWindows, CaptionEachFieldOfTheFirstTrimester) {
    std::vector<std::pair<int, const char*>> captions{{0, "IMC"},
                                                      {1, "Opérateur"},
                                                      {2, "DDR"},
                                                      {3, "DDG Théorique"},
                                                      {4, "DDG US"},
                                                      {5, "Modalité d'examen"},
                                                      {6, "Conditions d'examen"},
                                                      {7, "Indication"},
                                                      {8, "Utérus"},
                                                      {9, "Annexes"},
                                                      {10, "Douglas"},
                                                      {11, "Nombre"},
                                                      {12, "Situation"},
                                                      {13, "Dimensions"},
                                                      {14, "Aspect"},
                                                      {15, "Nbr. d'Embryons"},
                                                      {24, "Liquide Amnio"},
                                                      {25, "Trophoblaste  Placenta"},
                                                      {26, "Conclusion"}};
    for (const int first : {16, 27, 35}) {
        int index = first;
        for (const char* caption : {"M.A.", "Activ. Cardiaque", "LCC (mm)", "BIP (mm)", "Fémur (mm)", "Clarté Nucale",
                                    "OPN", "Morphologie"}) {
            captions.emplace_back(index++, caption);
        }
    }
    ASSERT_EQ(captions.size(), 43U);
    const std::vector<std::pair<const char16_t*, const char*>> strip{{u"LblNumInt", "N° Int"},
                                                                     {u"TxtNumEcho", "Echographie N°"},
                                                                     {u"TxtDate", "Date de l'Examen"},
                                                                     {u"LblAgeGesta", "Age Gestationnel"},
                                                                     {u"TxtPds", "Poids"},
                                                                     {u"TxtTaille", "Taille"}};
    for (const char* name : {"Form5", "Form7"}) {
        const forms::Form* form = program_.desk().peek(name);
        const FormWindow* window = stage_.windowOf(*form);
        for (const auto& [index, caption] : captions) {
            const QWidget* field = window->widgetOf(*form->find(u"Txt1Ter", index));
            EXPECT_TRUE(captioned(field, caption)) << name << ' ' << index;
            EXPECT_EQ(field->accessibleName(), caption) << name << ' ' << index;
        }
        for (const auto& [control, caption] : strip) {
            EXPECT_TRUE(captioned(window->widgetOf(*form->find(control)), caption)) << name << caption;
        }
        const QList<QLabel*> labels = window->findChildren<QLabel*>();
        EXPECT_TRUE(std::ranges::any_of(labels, [](const QLabel* label) {
            return label->text() == u"Echographie du 1er Trimestre";
        })) << name;
    }
}

/// Whether a section of the window has this title.
bool hasSection(const QWidget* window, const QString& title) {
    return std::ranges::any_of(window->findChildren<Section*>(),
                               [&](const Section* section) { return section->accessibleName() == title; });
}

TEST_F(AllWindows, CaptionEachFieldOfGynaecology) {
    const std::vector<std::pair<int, const char*>> captions{{1, "Opérateur"},
                                                            {2, "DDR"},
                                                            {3, "Modalité d'examen"},
                                                            {4, "Conditions d'examen"},
                                                            {5, "Indication"},
                                                            {6, "Situation"},
                                                            {7, "Longueur"},
                                                            {8, "Largeur"},
                                                            {9, "Epaisseur"},
                                                            {10, "Echostructure"},
                                                            {11, "Cavité utérine"},
                                                            {12, "Endomètre"},
                                                            {13, "Epaisseur de l'Endomètre"},
                                                            {14, "D.I.U."},
                                                            {15, "Masse"},
                                                            {16, "Ovaire Droit"},
                                                            {17, "Ovaire Gauche"},
                                                            {18, "Trompe Droite"},
                                                            {19, "Trompe Gauche"},
                                                            {21, "Situation"},
                                                            {22, "Dimensions"},
                                                            {23, "Structure"},
                                                            {24, "Nature"},
                                                            {25, "Origine"},
                                                            {27, "Jour de la Stimulaion"},
                                                            {28, "Dimensions"},
                                                            {29, "Nbr. de Follicules"},
                                                            {30, "Taille des Follicules"},
                                                            {31, "Dimensions"},
                                                            {32, "Nbr. de Follicules"},
                                                            {33, "Taille des Follicules"},
                                                            {34, "Epaisseur"},
                                                            {35, "Remarques"}};
    for (const char* name : {"Form16", "Form17"}) {
        const forms::Form* form = program_.desk().peek(name);
        const FormWindow* window = stage_.windowOf(*form);
        for (const auto& [index, caption] : captions) {
            EXPECT_TRUE(captioned(window->widgetOf(*form->find(u"TxtGyneco", index)), caption)) << name << ' ' << index;
        }
        EXPECT_EQ(window->widgetOf(*form->find(u"TxtGyneco", 20))->accessibleName(), "Douglas");
        EXPECT_EQ(window->widgetOf(*form->find(u"TxtGyneco", 26))->accessibleName(), "Conclusion");
        EXPECT_EQ(window->widgetOf(*form->find(u"TxtGyneco", 28))->accessibleName(), "Ovaire Droit, Dimensions");
        EXPECT_EQ(window->widgetOf(*form->find(u"TxtGyneco", 31))->accessibleName(), "Ovaire gauche, Dimensions");
        EXPECT_TRUE(captioned(window->widgetOf(*form->find(u"TxtNumEcho")), "Echographie N°")) << name;
        EXPECT_TRUE(captioned(window->widgetOf(*form->find(u"TxtDate")), "Date de l'Examen")) << name;
        for (const char* title :
             {"Utérus", "Annexes", "Douglas", "Masse", "Conclusion", "Ovaire Droit", "Ovaire gauche", "Endomètre "}) {
            EXPECT_TRUE(hasSection(window, title)) << name << ' ' << title;
        }
    }
}

TEST_F(AllWindows, CaptionEachFieldOfAGynaecologicalExamInView) {
    const std::vector<std::pair<int, const char*>> counted{
        {0, "Indication"},     {1, "Situation"},      {2, "Longueur"},
        {3, "Largeur"},        {4, "Epaisseur"},      {5, "Echostructure"},
        {6, "Cavité utérine"}, {7, "Endomètre"},      {8, "Epaisseur de l'Endomètre"},
        {9, "D.I.U."},         {10, "Masse"},         {11, "Ovaire Droit"},
        {12, "Ovaire Gauche"}, {13, "Trompe Droite"}, {14, "Trompe Gauche"},
        {16, "Situation"},     {17, "Dimensions"},    {18, "Structure"},
        {19, "Nature"},        {20, "Origine"}};
    const std::vector<std::pair<const char16_t*, const char*>> named{{u"TxtNumEcho", "Echographie N°"},
                                                                     {u"TxtDate", "Date de l'Examen"},
                                                                     {u"CmbMedecin", "Opérateur"},
                                                                     {u"TxtDdr", "DDR"},
                                                                     {u"CmbModExam", "Modalité d'examen"},
                                                                     {u"CmbCondExam", "Conditions d'examen"},
                                                                     {u"TxtJStim", "Jour de la Stimulaion"},
                                                                     {u"TxtDimD", "Dimensions (mm)"},
                                                                     {u"TxtNbrFolD", "Nbr. de Follicules"},
                                                                     {u"TxtTFolD", "Taille des Follicules"},
                                                                     {u"TxtDimG", "Dimensions (mm)"},
                                                                     {u"TxtNbrFolG", "Nbr. de Follicules"},
                                                                     {u"TxtTFolG", "Taille des Follicules"},
                                                                     {u"TxtEndom", "Epaisseur"},
                                                                     {u"Text1", "Remarques"}};
    const forms::Form* form = program_.desk().peek("Form18");
    const FormWindow* window = stage_.windowOf(*form);
    for (const auto& [index, caption] : counted) {
        EXPECT_TRUE(captioned(window->widgetOf(*form->find(u"TxtGyneco", index)), caption)) << index;
    }
    for (const auto& [control, caption] : named) {
        EXPECT_TRUE(captioned(window->widgetOf(*form->find(control)), caption)) << caption;
    }
    for (const char* title :
         {"Utérus", "Annexes", "Douglas", "Masse", "Conclusion", "Ovaire Droit", "Ovaire gauche", "Endomètre "}) {
        EXPECT_TRUE(hasSection(window, title)) << title;
    }
}

// With three fetuses and the zones the sheet is at its fullest.
TEST_F(AllWindows, LeaveRoomForTheLongTextsOfTheLaterExams) {
    auto* form = static_cast<exams::Form8*>(program_.desk().peek("Form8"));
    FormWindow* window = stage_.windowOf(*form);
    window->resize(1330, 710);
    window->show();
    program_.desk().act([&] {
        form->Option3.setChecked(true);
        form->Option3.click();
        form->Bourgeois.click();
    });
    QApplication::processEvents();
    const auto lines = [&](int index) {
        const QWidget* field = window->widgetOf(*form->find(u"Txt2T", index));
        return field->height() / field->fontMetrics().lineSpacing();
    };
    EXPECT_GE(lines(64), 6);
    EXPECT_GE(lines(32), 4);
    for (const int index : {7, 8, 9, 10, 30, 31}) {
        EXPECT_GE(lines(index), 2) << index;
    }
    EXPECT_GT(window->widgetOf(form->sheet.Txt2T(32))->width(), 2 * window->widgetOf(form->sheet.Txt2T(31))->width());
}

TEST_F(AllWindows, LetTheKeyboardReachEachFieldAndButton) {
    forEachControl([](const Control& control, const QWidget* widget, const std::string& name) {
        if (control.kind() == Kind::TextBox || control.kind() == Kind::Button || control.kind() == Kind::ComboBox ||
            control.kind() == Kind::Option || control.kind() == Kind::Check) {
            ASSERT_NE(widget, nullptr) << name;
            EXPECT_TRUE(widget->focusPolicy() & Qt::TabFocus) << name;
        }
    });
}

/// The place of a widget in its window; one that a scroll area hides stands at the edge behind which it is.
QRect placeOf(const QWidget* widget, const QWidget* window) {
    QRect place(widget->mapTo(window, QPoint(0, 0)), widget->size());
    for (const QWidget* above = widget->parentWidget(); above && above != window; above = above->parentWidget()) {
        if (const auto* area = qobject_cast<const QAbstractScrollArea*>(above)) {
            const QRect view(area->viewport()->mapTo(window, QPoint(0, 0)), area->viewport()->size());
            place.moveTop(std::clamp(place.top(), view.top(), view.bottom()));
        }
    }
    return place;
}

/// Reading goes to the right or down; a column to the right starts at its top again.
bool readsOn(const QRect& from, const QRect& to) {
    const bool up = to.bottom() < from.top();
    const bool left = to.right() < from.left();
    return !(up && to.left() < from.right()) && !(left && to.top() < from.top());
}

std::vector<QWidget*> tabChain(QWidget* window) {
    std::vector<QWidget*> chain;
    QWidget* widget = window;
    do {
        if (widget != window && widget->isVisible() && widget->isEnabled() && !widget->focusProxy() &&
            (widget->focusPolicy() & Qt::TabFocus) && widget->window() == window) {
            chain.push_back(widget);
        }
        widget = widget->nextInFocusChain();
    } while (widget != window);
    return chain;
}

TEST_F(AllWindows, LetTabFollowTheReadingOrder) {
    for (forms::Form* form : program_.desk().loaded()) {
        FormWindow* window = stage_.windowOf(*form);
        window->resize(kSmallScreen);
        window->show();
        QApplication::processEvents();
        const std::vector<QWidget*> chain = tabChain(window);
        for (std::size_t i = 1; i < chain.size(); ++i) {
            EXPECT_TRUE(readsOn(placeOf(chain[i - 1], window), placeOf(chain[i], window)))
                << form->name().toStdString() << ": from " << chain[i - 1]->objectName().toStdString() << " to "
                << chain[i]->objectName().toStdString();
        }
    }
}

TEST_F(AllWindows, StopTabAtNothingWithoutAName) {
    for (forms::Form* form : program_.desk().loaded()) {
        FormWindow* window = stage_.windowOf(*form);
        window->show();
        for (QWidget* widget : tabChain(window)) {
            const QString name = QAccessible::queryAccessibleInterface(widget)->text(QAccessible::Name);
            EXPECT_FALSE(name.isEmpty()) << form->name().toStdString() << ": " << widget->metaObject()->className()
                                         << ' ' << widget->objectName().toStdString();
        }
    }
}

TEST_F(AllWindows, LetTabLeaveEachField) {
    forEachControl([this](const Control& control, QWidget* widget, const std::string& name) {
        FormWindow* window = stage_.windowOf(control.form());
        window->show();
        const std::vector<QWidget*> chain = tabChain(window);
        // In the text of a report Tab is a character, as in any editor.
        if (control.kind() == Kind::RichText || chain.size() < 2 || std::ranges::find(chain, widget) == chain.end()) {
            return;
        }
        widget->setFocus(Qt::TabFocusReason);
        QTest::keyClick(widget, Qt::Key_Tab);
        EXPECT_NE(window->focusWidget(), widget) << name;
    });
}

TEST_F(AllWindows, KeepTheirValuesUnderTheWheel) {
    forEachControl([](const Control& control, QWidget* widget, const std::string& name) {
        const auto* text = dynamic_cast<const forms::TextControl*>(&control);
        if (!widget || !text || control.kind() == Kind::RichText) {
            return;
        }
        const QString before = text->text();
        for (const int turn : {120, -120}) {
            QWheelEvent wheel({5, 5}, widget->mapToGlobal(QPointF(5, 5)), {}, {0, turn}, Qt::NoButton, Qt::NoModifier,
                              Qt::NoScrollPhase, false);
            QApplication::sendEvent(widget, &wheel);
        }
        EXPECT_EQ(text->text(), before) << name;
    });
}

QChar mnemonicOf(const QString& caption) {
    const QKeySequence key = QKeySequence::mnemonic(caption);
    return key.isEmpty() ? QChar() : QChar(static_cast<char16_t>(key[0].key()));
}

TEST_F(AllWindows, GiveNoCaptionOfTheirOwnAMnemonicThatIsTaken) {
    for (forms::Form* form : program_.desk().loaded()) {
        QStringList taken;
        for (const Control* control : form->controls()) {
            if (control->kind() == Kind::Button || control->kind() == Kind::Option || control->kind() == Kind::Check) {
                taken << QString(mnemonicOf(static_cast<const forms::TextControl*>(control)->text()));
            }
        }
        for (const QLabel* label : stage_.windowOf(*form)->findChildren<QLabel*>()) {
            const QChar mnemonic = label->buddy() ? mnemonicOf(label->text()) : QChar();
            if (!mnemonic.isNull()) {
                EXPECT_FALSE(taken.contains(QString(mnemonic)))
                    << form->name().toStdString() << ": " << label->text().toStdString();
                taken << QString(mnemonic);
            }
        }
    }
}

TEST_F(AllWindows, TakeNoMoreMemoryEachTimeTheyComeUp) {
    if (bytesInUse() == 0) {
        GTEST_SKIP() << "no figures of this heap";
    }
    const std::vector<forms::Form*> forms = program_.desk().loaded();
    const auto comeUp = [&](std::size_t times) {
        for (std::size_t i = 0; i < times * forms.size(); ++i) {
            forms::Form& form = *forms[i % forms.size()];
            stage_.formForgotten(form);
            stage_.formShown(form);
            QApplication::processEvents();
            QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
            stage_.windowOf(form)->grab();
        }
    };
    comeUp(6);
    const std::size_t before = bytesInUse();
    constexpr std::size_t kTimes = 10;
    comeUp(kTimes);
    // Bytes a time: the toolkit's own tables still fill a little, one widget that stays is more.
    constexpr std::size_t kMost = 1000;
    EXPECT_LT(bytesInUse(), before + kTimes * forms.size() * kMost);
}

}  // namespace
}  // namespace qt
