#include "qt/binder.h"

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMenu>
#include <QMenuBar>
#include <QMouseEvent>
#include <QPushButton>
#include <QRadioButton>
#include <QSlider>
#include <QTextEdit>
#include <QToolButton>
#include <algorithm>

#include "forms/desk.h"
#include "qt/calendar_view.h"
#include "qt/drawing_view.h"
#include "qt/elided_label.h"
#include "qt/ink_icon.h"
#include "qt/key_filter.h"
#include "qt/list_model.h"
#include "qt/list_view.h"
#include "qt/page_view.h"
#include "qt/picture_view.h"
#include "qt/section.h"

namespace qt {
namespace {

using forms::Aspect;

constexpr int kButtonHeight = 28;

/// Calls a handler when the widget is clicked with one of the mouse's buttons.
class ClickFilter final : public QObject {
public:
    ClickFilter(QWidget* watched, Qt::MouseButton button, std::function<void()> clicked)
        : QObject(watched), button_(button), clicked_(std::move(clicked)) {
        watched->installEventFilter(this);
    }

protected:
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() == QEvent::MouseButtonRelease && static_cast<QMouseEvent*>(event)->button() == button_) {
            clicked_();
        }
        return false;
    }

private:
    Qt::MouseButton button_;
    std::function<void()> clicked_;
};

/// Calls a handler at a double click, which does what else it does there all the same.
class DoubleClickFilter final : public QObject {
public:
    DoubleClickFilter(QWidget* watched, std::function<void()> clicked)
        : QObject(watched), clicked_(std::move(clicked)) {
        watched->installEventFilter(this);
    }

protected:
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() == QEvent::MouseButtonDblClick &&
            static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton) {
            clicked_();
        }
        return false;
    }

private:
    std::function<void()> clicked_;
};

constexpr int kTwipsPerPixel = 15;

void placeAt(QWidget* widget, const forms::Place& place) {
    const auto pixels = [](int twips) { return qRound(static_cast<double>(twips) / kTwipsPerPixel); };
    widget->setGeometry(pixels(place.left), pixels(place.top), qMax(0, pixels(place.width)),
                        qMax(0, pixels(place.height)));
}

template <class Button>
Button* bindSwitch(FormWindow& window, forms::Switch& control, Button* button, std::function<void()> pressed) {
    auto sync = [&control, button](Aspect, int) {
        button->setText(control.text());
        button->setChecked(control.checked());
    };
    button->setAutoExclusive(false);
    window.bind(control, button, sync);
    sync(Aspect::Checked, -1);
    QObject::connect(button, &QAbstractButton::clicked, &window, [&window, sync, pressed] {
        window.act(pressed);
        if (window.alive()) {
            sync(Aspect::Checked, -1);
        }
    });
    return button;
}

}  // namespace

QLabel* Binder::label(forms::Label& control) {
    return bindLabel(control, new QLabel);
}

QLabel* Binder::elidedLabel(forms::Label& control) {
    return bindLabel(control, new ElidedLabel);
}

QLabel* Binder::bindLabel(forms::Label& control, QLabel* label) {
    label->setTextFormat(Qt::PlainText);
    auto sync = [&control, label](Aspect, int) { label->setText(control.text()); };
    window_.bind(control, label, sync);
    sync(Aspect::Text, -1);
    new ClickFilter(label, Qt::LeftButton,
                    [this_ = &window_, &control] { this_->act([&control] { control.click(); }); });
    return label;
}

QListView* Binder::list(forms::ListBox& control, const QString& caption) {
    auto* view = new ListView;
    view->setAccessibleName(caption);
    view->setEditTriggers(QAbstractItemView::NoEditTriggers);
    view->setUniformItemSizes(true);
    auto* model = new ListModel(control, view);
    view->setModel(model);
    auto showRow = [&control, view, model] { view->setCurrentIndex(model->index(control.row())); };
    window_.bind(control, view, [model, view, showRow, opened = false](Aspect aspect, int row) mutable {
        if (aspect != Aspect::Row) {
            model->follow(aspect, row);
        }
        showRow();
        if (opened && aspect == Aspect::Row) {
            view->showInTheMiddle();
        }
        opened = aspect == Aspect::Items;
    });
    window_.atRetirement([model] { model->release(); });
    QObject::connect(view->selectionModel(), &QItemSelectionModel::currentChanged, &window_,
                     [&control, model](const QModelIndex& now) {
                         if (now.isValid() && !model->following()) {
                             control.setRow(now.row());
                         }
                     });
    bindRows(control, view);
    bindPresses(control, view);
    return view;
}

void Binder::bindRows(forms::ListBox& control, QListView* view) {
    FormWindow* window = &window_;
    const auto chosen = [window, &control](int row, void (forms::Control::*event)()) {
        window->act([&control, row, event] {
            control.setRow(row);
            (control.*event)();
        });
    };
    QObject::connect(view, &QListView::clicked, window,
                     [chosen](const QModelIndex& at) { chosen(at.row(), &forms::Control::click); });
    QObject::connect(view, &QListView::doubleClicked, window,
                     [chosen](const QModelIndex& at) { chosen(at.row(), &forms::Control::doubleClick); });
    new PressFilter(view, [view, chosen, &control](const QKeyEvent& event) {
        if (isEnter(event) && view->currentIndex().isValid()) {
            // In a list where a click alone means something Enter stands for that.
            chosen(view->currentIndex().row(),
                   control.onDoubleClick ? &forms::Control::doubleClick : &forms::Control::click);
        }
        return isEnter(event);
    });
}

void Binder::bindPresses(forms::ListBox& control, QListView* view) {
    FormWindow* window = &window_;
    const auto run = [window, &control](std::function<void()> forms::ListBox::*slot) {
        if (window->alive() && control.*slot) {
            window->act([&control, slot] { (control.*slot)(); });
        }
    };
    new ClickFilter(view->viewport(), Qt::RightButton, [run] { run(&forms::ListBox::onRightClick); });
    new PressFilter(view, [run](const QKeyEvent& event) {
        if (event.key() == Qt::Key_Menu) {
            run(&forms::ListBox::onRightClick);
        } else if (event.key() == Qt::Key_Escape) {
            run(&forms::ListBox::onEscape);
        }
        return event.key() == Qt::Key_Menu || event.key() == Qt::Key_Escape;
    });
}

CalendarView* Binder::calendar(forms::Calendar& control, const QString& caption) {
    auto* view = new CalendarView(
        [window = &window_, &control](QDate date) { window->act([&control, date] { control.choose(date); }); });
    view->setAccessibleName(caption);
    const auto sync = [&control, view](Aspect, int) {
        if (control.date().isValid()) {
            view->setSelectedDate(control.date());
            view->setCurrentPage(control.date().year(), control.date().month());
        }
    };
    window_.bind(control, view, sync);
    sync(Aspect::Text, -1);
    return view;
}

QComboBox* Binder::combo(forms::ComboBox& control, const QString& caption) {
    auto* combo = new QuietComboBox;
    combo->setEditable(true);
    combo->setInsertPolicy(QComboBox::NoInsert);
    combo->setCompleter(nullptr);
    combo->setAccessibleName(caption);
    combo->lineEdit()->setAccessibleName(caption);
    combo->lineEdit()->setReadOnly(control.locked());
    auto sync = [&control, combo](Aspect aspect, int) {
        if (aspect == Aspect::Items) {
            combo->clear();
            combo->addItems(control.items());
        }
        if (combo->currentText() != control.text()) {
            combo->setEditText(control.text());
        }
    };
    window_.bind(control, combo, sync);
    combo->addItems(control.items());
    combo->setEditText(control.text());
    FormWindow* window = &window_;
    new DoubleClickFilter(combo->lineEdit(),
                          [window, &control] { window->act([&control] { control.doubleClick(); }); });
    QObject::connect(combo->lineEdit(), &QLineEdit::textEdited, window, [window, &control](const QString& text) {
        window->act([&control, text] { control.setText(text); });
    });
    QObject::connect(combo, &QComboBox::textActivated, window, [window, &control](const QString& text) {
        window->act([&control, text] {
            control.setText(text);
            control.click();
        });
    });
    return combo;
}

QPushButton* Binder::button(forms::Button& control) {
    auto* button = new QPushButton;
    button->setAutoDefault(false);
    button->setMinimumHeight(kButtonHeight);
    auto sync = [&control, button](Aspect, int) { button->setText(control.text()); };
    window_.bind(control, button, sync);
    sync(Aspect::Text, -1);
    QObject::connect(button, &QPushButton::clicked, &window_,
                     [this_ = &window_, &control] { this_->act([&control] { control.click(); }); });
    // Enter presses the button that has the focus, as Space does.
    new PressFilter(button, [button](const QKeyEvent& event) {
        if (isEnter(event)) {
            button->click();
        }
        return isEnter(event);
    });
    return button;
}

QRadioButton* Binder::option(forms::Option& control) {
    return bindSwitch(window_, control, new QRadioButton, [&control] {
        control.setChecked(true);
        control.click();
    });
}

QCheckBox* Binder::check(forms::Check& control) {
    return bindSwitch(window_, control, new QCheckBox, [&control] {
        control.setChecked(!control.checked());
        control.click();
    });
}

QToolButton* Binder::tool(forms::ToolButton& control) {
    auto* button = new QToolButton;
    button->setAutoRaise(true);
    // A click leaves the focus, and the selection with it, where it is.
    button->setFocusPolicy(Qt::TabFocus);
    button->setIcon(inkIcon(control.image().toLower().replace(u' ', u'-')));
    button->setCheckable(control.toggles());
    auto sync = [&control, button](Aspect, int) {
        button->setToolTip(control.text());
        button->setAccessibleName(control.text());
        button->setChecked(control.checked());
    };
    window_.bind(control, button, sync);
    sync(Aspect::Checked, -1);
    QObject::connect(button, &QToolButton::clicked, &window_, [this_ = &window_, &control, sync] {
        this_->act([&control] { control.click(); });
        if (this_->alive()) {
            sync(Aspect::Checked, -1);
        }
    });
    return button;
}

QSlider* Binder::slider(forms::ScrollBar& control, const QString& caption) {
    auto* slider = new QuietSlider;
    slider->setAccessibleName(caption);
    slider->setRange(control.range().min, control.range().max);
    slider->setPageStep(control.range().largeStep);
    const auto sync = [&control, slider](Aspect, int) { slider->setValue(control.value()); };
    window_.bind(control, slider, sync);
    sync(Aspect::Value, -1);
    QObject::connect(slider, &QSlider::valueChanged, &window_, [this_ = &window_, &control](int value) {
        if (this_->alive() && control.value() != value) {
            this_->act([&control, value] { control.setValue(value); });
        }
    });
    return slider;
}

PictureView* Binder::picture(forms::Image& control, const QString& caption) {
    FormWindow* window = &window_;
    auto* view =
        new PictureView({.clicks = [&control] { return static_cast<bool>(control.onClick); },
                         .doubleClicks = [&control] { return static_cast<bool>(control.onDoubleClick); },
                         .click = [window, &control] { window->act([&control] { control.click(); }); },
                         .doubleClick = [window, &control] { window->act([&control] { control.doubleClick(); }); }});
    view->setAccessibleName(caption);
    const auto sync = [&control, view](Aspect aspect, int) {
        if (aspect == Aspect::Place) {
            placeAt(view, *control.place());
        } else {
            view->setPicture(control.picture());
        }
    };
    window_.bind(control, view, sync);
    sync(Aspect::Picture, -1);
    window_.atRetirement([view] { view->release(); });
    return view;
}

PageView* Binder::page(forms::RichText& control, const QString& caption) {
    auto* view = new PageView(control.document(), caption);
    QTextEdit* edit = &view->edit();
    const auto showSelection = [&control, edit] {
        const QTextCursor& wanted = control.cursor();
        const QTextCursor now = edit->textCursor();
        if (now.anchor() != wanted.anchor() || now.position() != wanted.position()) {
            edit->setTextCursor(wanted);
        } else if (edit->currentCharFormat() != wanted.charFormat()) {
            edit->setCurrentCharFormat(wanted.charFormat());
        }
    };
    view->setLineWidth(control.lineWidth());
    window_.bind(control, view, [&control, view, showSelection](Aspect aspect, int) {
        if (aspect == Aspect::LineWidth) {
            view->setLineWidth(control.lineWidth());
        } else if (aspect == Aspect::Selection) {
            showSelection();
        } else if (aspect == Aspect::Place) {
            placeAt(view, *control.place());
        }
    });
    showSelection();
    const auto follow = [this_ = &window_, &control, edit] {
        const QTextCursor now = edit->textCursor();
        this_->form().desk().act([&] { control.follow(now.anchor(), now.position()); });
    };
    QObject::connect(edit, &QTextEdit::cursorPositionChanged, &window_, follow);
    QObject::connect(edit, &QTextEdit::selectionChanged, &window_, follow);
    QObject::connect(edit, &QTextEdit::textChanged, &window_, follow);
    window_.atRetirement([view] { view->release(); });
    return view;
}

Section* Binder::section(forms::Frame& control) {
    auto* section = new Section(control.text());
    window_.bind(control, section, [&control, section](Aspect, int) { section->setTitle(control.text()); });
    return section;
}

QMenuBar* Binder::menuBar() {
    auto* bar = new QMenuBar;
    for (forms::Control* control : window_.form().controls()) {
        if (control->kind() == forms::Kind::Menu && !control->holder()) {
            addEntry(bar, static_cast<forms::Menu&>(*control));
        }
    }
    return bar;
}

void Binder::addEntry(QWidget* parent, forms::Menu& control) {
    const auto& all = window_.form().controls();
    const bool holdsOthers = std::any_of(all.begin(), all.end(), [&](const forms::Control* other) {
        return other->kind() == forms::Kind::Menu && other->holder() == &control;
    });
    QAction* action = nullptr;
    if (holdsOthers) {
        auto* menu = new QMenu(parent);
        for (forms::Control* other : all) {
            if (other->kind() == forms::Kind::Menu && other->holder() == &control) {
                addEntry(menu, static_cast<forms::Menu&>(*other));
            }
        }
        action = menu->menuAction();
    } else {
        action = new QAction(parent);
        action->setCheckable(control.hasMark());
    }
    parent->addAction(action);
    const auto sync = [&control, action] {
        action->setText(control.text());
        action->setChecked(control.checked());
    };
    window_.bind(control, action, sync);
    QObject::connect(action, &QAction::triggered, &window_, [this_ = &window_, &control, sync] {
        this_->act([&control] { control.click(); });
        if (this_->alive()) {
            sync();
        }
    });
}

DrawingView* Binder::drawing(forms::Image& control, const QString& caption) {
    auto* view = new DrawingView;
    view->setAccessibleName(caption);
    const auto sync = [&control, view](Aspect aspect, int) {
        if (aspect == Aspect::Picture) {
            view->setDrawing(control.drawing());
        }
    };
    window_.bind(control, view, sync);
    sync(Aspect::Picture, -1);
    return view;
}

QWidget* Binder::plain(forms::Control& control, QWidget* widget) {
    window_.bind(control, widget, [](Aspect, int) {});
    return widget;
}

}  // namespace qt
