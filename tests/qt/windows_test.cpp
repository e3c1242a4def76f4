#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QPlainTextEdit>
#include <QPushButton>

#include "dossier/form4.h"
#include "fakes/world.h"
#include "practice/practice.h"
#include "qt/form_window.h"
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

TEST_F(AllWindows, NameEachFieldForAScreenReader) {
    forEachControl([](const Control& control, const QWidget* widget, const std::string& name) {
        if (control.kind() == Kind::TextBox || control.kind() == Kind::ListBox || control.kind() == Kind::ComboBox) {
            ASSERT_NE(widget, nullptr) << name;
            EXPECT_FALSE(widget->accessibleName().isEmpty()) << name;
        }
    });
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

}  // namespace
}  // namespace qt
