#include "qt/layouts/shell_layouts.h"

#include <QCoreApplication>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>

#include "qt/artwork.h"
#include "qt/binder.h"
#include "qt/layouts/parts.h"
#include "qt/theme.h"

namespace qt {
namespace {

using theme::kGrid;

constexpr int kMenuButtonHeight = 36;
constexpr int kMenuButtonWidth = 240;

QVBoxLayout* column(QWidget* parent) {
    auto* layout = new QVBoxLayout(parent);
    layout->setContentsMargins(3 * kGrid, 3 * kGrid, 3 * kGrid, 3 * kGrid);
    layout->setSpacing(kGrid);
    return layout;
}

// A widget that leaves its place empty when it is hidden.
template <class Widget>
Widget* keepingItsPlace(Widget* widget) {
    QSizePolicy policy = widget->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    widget->setSizePolicy(policy);
    return widget;
}

// Shows how far a step is that holds the window up: each change is painted at once, and no click comes through.
QProgressBar* progressBar(forms::Label& control, FormWindow& window, const QString& caption) {
    auto* bar = new QProgressBar;
    bar->setAccessibleName(caption);
    bar->setFormat(QStringLiteral("%p %"));
    window.bind(control, bar, [&control, bar](forms::Aspect, int) {
        bar->setValue(control.text().section(u' ', 0, 0).toInt());
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    });
    return bar;
}

QLabel* centred(QLabel* label) {
    label->setAlignment(Qt::AlignCenter);
    label->setWordWrap(true);
    return label;
}

}  // namespace

void layOutForm1(shell::Form1& form, FormWindow& window) {
    Binder bind(window);
    auto* all = new QHBoxLayout(&window);
    all->setContentsMargins(3 * kGrid, 3 * kGrid, 3 * kGrid, 3 * kGrid);
    all->setSpacing(4 * kGrid);
    all->addWidget(bind.plain(form.Image1, new Artwork(QStringLiteral("menu"), QSize(300, 400))), 1);

    auto* buttons = new QVBoxLayout;
    buttons->setSpacing(kGrid);
    const auto add = [&](forms::Button& control) {
        auto* button = bind.button(control);
        button->setMinimumSize(kMenuButtonWidth, kMenuButtonHeight);
        buttons->addWidget(button);
    };
    for (forms::Button* control : {&form.Command1, &form.Command2, &form.Command5, &form.Command6}) {
        add(*control);
    }
    buttons->addSpacing(2 * kGrid);
    for (forms::Button* control : {&form.CmdSauve, &form.CmdSupervi, &form.CmdAide, &form.Command4}) {
        add(*control);
    }
    buttons->addStretch(1);
    add(form.Command3);
    all->addLayout(buttons);
}

void layOutForm14(shell::Form14& form, FormWindow& window) {
    Binder bind(window);
    auto* all = column(&window);
    all->addWidget(bind.plain(form.picIcon, new Artwork(QStringLiteral("icon"), QSize(72, 72))), 0, Qt::AlignHCenter);
    auto* title = centred(bind.label(form.Label6));
    title->setFont(theme::headingFont());
    all->addWidget(title);
    for (forms::Label* control : {&form.Label5, &form.Label2, &form.Label3, &form.Label4}) {
        all->addWidget(centred(bind.label(*control)));
    }
    all->addSpacing(kGrid);
    all->addWidget(bind.button(form.Command1), 0, Qt::AlignHCenter);
    window.setMinimumWidth(420);
}

void layOutForm15(shell::Form15& form, FormWindow& window) {
    Binder bind(window);
    auto* all = column(&window);
    auto* pictures = new QHBoxLayout;
    for (int i = form.Image1.first(); i <= form.Image1.last(); ++i) {
        pictures->addWidget(bind.plain(form.Image1(i), new Artwork(QStringLiteral("greeting"), QSize(64, 64))));
    }
    all->addLayout(pictures);
    for (forms::Label* control : {&form.Label1, &form.Label5, &form.Label2, &form.Label3, &form.Label4}) {
        all->addWidget(centred(bind.label(*control)));
    }
    window.widgetOf(form.Label5)->setFont(theme::headingFont());
    all->addSpacing(kGrid);
    all->addWidget(bind.button(form.Command1), 0, Qt::AlignHCenter);
    window.setMinimumWidth(420);
}

void layOutForm21(shell::Form21& form, FormWindow& window) {
    Binder bind(window);
    auto* all = column(&window);
    all->addWidget(bind.button(form.CmdSauve1));
    all->addSpacing(2 * kGrid);
    all->addWidget(bind.button(form.CmdSauve2));
    const QString caption = QStringLiteral("Endroit");
    auto* place = newRow();
    auto* edit = bind.line(form.Text1, caption);
    place->addWidget(newCaption(caption, edit));
    place->addWidget(edit, 1);
    place->addWidget(bind.button(form.CmdParcourir));
    all->addLayout(place);
    all->addSpacing(2 * kGrid);
    all->addWidget(keepingItsPlace(bind.label(form.LblFichier)));
    all->addWidget(keepingItsPlace(progressBar(form.LblAvance, window, QStringLiteral("Avancement de la copie"))));
    all->addStretch(1);
    all->addWidget(bind.button(form.Command1), 0, Qt::AlignRight);
    window.resize(560, window.sizeHint().height());
}

void layOutForm22(shell::Form22& form, FormWindow& window) {
    Binder bind(window);
    auto* all = column(&window);
    bind.label(form.Label1)->setFont(theme::headingFont());
    all->addWidget(window.widgetOf(form.Label1));
    auto* instruction = bind.label(form.Label2);
    instruction->setWordWrap(true);
    all->addWidget(instruction);
    all->addSpacing(kGrid);

    auto* grid = new QGridLayout;
    grid->setSpacing(kGrid);
    grid->setColumnStretch(1, 1);
    const auto field = [&](const QString& caption, forms::TextBox& box, forms::Button& browse) {
        const int row = grid->rowCount();
        auto* edit = bind.line(box, caption);
        grid->addWidget(newCaption(caption, edit), row, 0);
        grid->addWidget(edit, row, 1);
        grid->addWidget(bind.button(browse), row, 2);
    };
    field(QStringLiteral("Base ECHO.MDB"), form.Text1, form.Command4);
    field(QStringLiteral("Base ECHOTEK.MDB"), form.Text2, form.Command5);
    field(QStringLiteral("Base NOM.MDB"), form.Text3, form.Command6);
    field(QStringLiteral("Base ATCD.MDB"), form.Text5, form.Command8);
    field(QStringLiteral("Répertoire de sauvegarde"), form.Text4, form.Command7);
    all->addLayout(grid);
    all->addStretch(1);
    all->addSpacing(kGrid);

    auto* actions = newRow();
    actions->addWidget(bind.button(form.Command1));
    actions->addStretch(1);
    actions->addWidget(bind.button(form.Command2));
    actions->addWidget(bind.button(form.Command3));
    all->addLayout(actions);
    window.resize(960, window.sizeHint().height());
}

}  // namespace qt
