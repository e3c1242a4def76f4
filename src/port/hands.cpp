#include "port/hands.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QJsonArray>
#include <QLineEdit>
#include <QListView>
#include <QPlainTextEdit>
#include <QPointer>
#include <QSlider>
#include <QTest>
#include <QTextBlock>
#include <QTextEdit>

#include "forms/desk.h"
#include "forms/rich_text.h"
#include "qt/calendar_view.h"
#include "qt/drawing_view.h"
#include "qt/page_view.h"
#include "qt/picture_view.h"

namespace port {
namespace {

using forms::Kind;

// The widget that takes the keys: an editable combo box hands them to its line.
QWidget* keyTaker(const Target& target) {
    auto* combo = qobject_cast<QComboBox*>(target.widget);
    return combo && combo->lineEdit() ? combo->lineEdit() : target.widget;
}

// The widget under the mouse: what scrolls has its inside there.
QWidget* mouseTaker(const Target& target) {
    auto* area = qobject_cast<QAbstractScrollArea*>(target.widget);
    return area ? area->viewport() : keyTaker(target);
}

bool onScreen(const Target& target) {
    if (target.action) {
        return target.control->form().shown() && target.control->reachable();
    }
    return target.widget && target.control->form().shown() && target.widget->isVisible();
}

void typeCharacter(QWidget* widget, QChar c) {
    if (c == u'\n' || c == u'\t') {
        QTest::keyClick(widget, c == u'\n' ? Qt::Key_Return : Qt::Key_Tab);
        return;
    }
    const int code = c.toUpper().unicode();
    const auto key = code < 0x100 ? static_cast<Qt::Key>(code) : Qt::Key_unknown;
    QTest::sendKeyEvent(QTest::Click, widget, key, QString(c), Qt::NoModifier, -1);
}

int rowOf(const Target& target, const QJsonObject& request) {
    const auto* list = dynamic_cast<const forms::ListBox*>(target.control);
    if (!list) {
        throw PortError{QStringLiteral("%1 is no list").arg(target.control->label())};
    }
    const QJsonValue line = request.contains(u"line") ? request.value(u"line") : request.value(u"text");
    const int row =
        line.isString() ? static_cast<int>(list->items().indexOf(line.toString())) : request.value(u"row").toInt(-1);
    if (row < 0 || row >= list->count()) {
        throw PortError{QStringLiteral("no such line in %1").arg(target.control->label())};
    }
    return row;
}

QPoint bringIntoView(QListView* view, int row) {
    const QModelIndex index = view->model()->index(row, 0);
    view->scrollTo(index);
    return view->visualRect(index).center();
}

bool namesLine(const QJsonObject& request) {
    return request.contains(u"row") || request.contains(u"line");
}

void tellColor(QJsonObject& seen, const QString& name, std::optional<forms::Color> color) {
    if (color) {
        seen[name] = QStringLiteral("#%1").arg(*color, 6, 16, QLatin1Char('0'));
    }
}

/// Pieces of a text, joined as long as their attributes are the same.
class Runs {
public:
    void add(QString text, const QTextCharFormat& characters, const QTextBlockFormat& paragraph) {
        namespace attributes = forms::attributes;
        QJsonObject run{{QStringLiteral("size"), attributes::points(characters)},
                        {QStringLiteral("bold"), attributes::bold(characters)},
                        {QStringLiteral("italic"), characters.fontItalic()},
                        {QStringLiteral("underline"), characters.fontUnderline()},
                        {QStringLiteral("strike"), characters.fontStrikeOut()},
                        {QStringLiteral("color"), attributes::color(characters).name()},
                        {QStringLiteral("family"), attributes::family(characters)},
                        {QStringLiteral("align"), static_cast<int>(attributes::alignment(paragraph))}};
        if (run != current_) {
            close();
            current_ = run;
        }
        text_ += text.replace(QChar::LineSeparator, u'\n');
    }
    QJsonArray all() {
        close();
        return runs_;
    }

private:
    void close() {
        if (!text_.isEmpty()) {
            current_[QStringLiteral("text")] = std::exchange(text_, {});
            runs_.append(current_);
        }
    }

    QJsonArray runs_;
    QJsonObject current_;
    QString text_;
};

QPoint clickPoint(const Target& target) {
    const bool marked = target.control->kind() == Kind::Option || target.control->kind() == Kind::Check;
    return marked ? QPoint(8, target.widget->height() / 2) : target.widget->rect().center();
}

// The size of what a place for pictures shows.
QJsonValue pictureOf(const forms::Image& image, const QWidget* widget) {
    const auto* drawing = dynamic_cast<const qt::DrawingView*>(widget);
    const QSize size = drawing ? drawing->pictureSize() : image.picture().size();
    if (size.isEmpty()) {
        return QJsonValue::Null;
    }
    return QJsonObject{{QStringLiteral("width"), size.width()}, {QStringLiteral("height"), size.height()}};
}

}  // namespace

namespace hands {

void requireInput(const qt::FormWindow& window) {
    for (const forms::Form* form : window.form().desk().loaded()) {
        if (form->exclusive() && form->shown() && form != &window.form()) {
            throw PortError{QStringLiteral("%1 takes no input now").arg(window.form().name())};
        }
    }
}

void reach(const Target& target) {
    if (!onScreen(target)) {
        throw PortError{QStringLiteral("%1 is not on screen").arg(target.control->label())};
    }
    if (target.action ? !target.action->isEnabled() : !target.widget->isEnabled()) {
        throw PortError{QStringLiteral("%1 is disabled").arg(target.control->label())};
    }
    requireInput(*target.window);
    target.window->raise();
    QApplication::setActiveWindow(target.window);
}

namespace {

// A menu entry is chosen, and nothing else.
void reachWidget(const Target& target) {
    reach(target);
    if (!target.widget) {
        throw PortError{QStringLiteral("%1 is no place for the mouse").arg(target.control->label())};
    }
}

}  // namespace

void focus(const Target& target) {
    reach(target);
    if (!target.widget || target.widget->focusPolicy() == Qt::NoFocus) {
        throw PortError{QStringLiteral("%1 takes no focus").arg(target.control->label())};
    }
    target.widget->setFocus(Qt::MouseFocusReason);
}

void type(const Target& target, const QString& text) {
    focus(target);
    const QPointer<QWidget> widget = keyTaker(target);
    if (auto* line = qobject_cast<QLineEdit*>(widget)) {
        line->end(false);
    } else if (auto* memo = qobject_cast<QPlainTextEdit*>(widget)) {
        memo->moveCursor(QTextCursor::End);
    } else if (auto* page = dynamic_cast<qt::PageView*>(widget.data())) {
        page->edit().moveCursor(QTextCursor::End);
    }
    for (const QChar c : text) {
        if (!widget || !widget->isVisible()) {
            throw PortError{QStringLiteral("the control went away while it was typed into")};
        }
        typeCharacter(widget, c);
    }
}

void replace(const Target& target, const QString& text) {
    focus(target);
    QWidget* widget = keyTaker(target);
    if (widget->property("readOnly").toBool()) {
        throw PortError{QStringLiteral("%1 is locked").arg(target.control->label())};
    }
    if (auto* line = qobject_cast<QLineEdit*>(widget)) {
        line->selectAll();
        text.isEmpty() ? line->backspace() : line->insert(text);
    } else if (auto* memo = qobject_cast<QPlainTextEdit*>(widget)) {
        memo->selectAll();
        QString plain = text;
        memo->insertPlainText(plain.replace(QStringLiteral("\r\n"), QStringLiteral("\n")));
    } else if (auto* page = dynamic_cast<qt::PageView*>(widget)) {
        page->edit().selectAll();
        page->edit().insertPlainText(text);
    } else {
        throw PortError{QStringLiteral("%1 takes no text").arg(target.control->label())};
    }
}

void key(const Target& target, const QString& keys) {
    focus(target);
    const QKeySequence sequence(keys);
    if (sequence.isEmpty() || sequence[0].key() == Qt::Key_unknown) {
        throw PortError{QStringLiteral("unknown key: %1").arg(keys)};
    }
    const QKeyCombination pressed = sequence[0];
    const bool command = pressed.keyboardModifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
    if (pressed.key() < Qt::Key_Escape && !command) {
        const QChar letter(static_cast<ushort>(pressed.key()));
        const bool capital = pressed.keyboardModifiers() & Qt::ShiftModifier;
        QTest::sendKeyEvent(QTest::Click, keyTaker(target), pressed.key(), capital ? letter : letter.toLower(),
                            pressed.keyboardModifiers());
    } else {
        QTest::keyClick(keyTaker(target), pressed.key(), pressed.keyboardModifiers());
    }
}

void click(const Target& target, const QJsonObject& request) {
    reach(target);
    if (target.action) {
        target.action->trigger();
        return;
    }
    if (auto* view = qobject_cast<QListView*>(target.widget); view && namesLine(request)) {
        const QPoint at = bringIntoView(view, rowOf(target, request));
        QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, at);
        return;
    }
    QTest::mouseClick(mouseTaker(target), Qt::LeftButton, {}, clickPoint(target));
    if (const QPointer<qt::PictureView> picture = dynamic_cast<qt::PictureView*>(target.widget)) {
        while (picture && picture->waiting()) {
            QApplication::processEvents(QEventLoop::WaitForMoreEvents);
        }
    }
}

void doubleClick(const Target& target, const QJsonObject& request) {
    reachWidget(target);
    auto* view = qobject_cast<QListView*>(target.widget);
    const QPoint at = view ? bringIntoView(view, rowOf(target, request)) : clickPoint(target);
    QWidget* widget = mouseTaker(target);
    // The first of the two clicks counts for itself, too.
    QTest::mouseClick(widget, Qt::LeftButton, {}, at);
    QTest::mouseDClick(widget, Qt::LeftButton, {}, at);
    QTest::mouseRelease(widget, Qt::LeftButton, {}, at);
}

void rightClick(const Target& target) {
    reachWidget(target);
    QTest::mouseClick(mouseTaker(target), Qt::RightButton);
}

void pick(const Target& target, const QString& date) {
    reach(target);
    auto* calendar = dynamic_cast<qt::CalendarView*>(target.widget);
    const QDate day = QDate::fromString(date, QStringLiteral("dd/MM/yyyy"));
    if (!calendar || !day.isValid()) {
        throw PortError{QStringLiteral("%1 has no day %2").arg(target.control->label(), date)};
    }
    const QPoint at = calendar->placeOf(day);
    QTest::mouseClick(calendar->days(), Qt::LeftButton, {}, at);
}

void scroll(const Target& target, int value) {
    reach(target);
    auto* slider = qobject_cast<QSlider*>(target.widget);
    if (!slider) {
        throw PortError{QStringLiteral("%1 is no scroll bar").arg(target.control->label())};
    }
    slider->setValue(value);
}

void choose(const Target& target, const QJsonObject& request) {
    reach(target);
    auto* combo = qobject_cast<QComboBox*>(target.widget);
    if (!combo) {
        QJsonObject line = request;
        click(target, {{QStringLiteral("row"), rowOf(target, line)}});
        return;
    }
    const int row = request.contains(u"text") ? combo->findText(request.value(u"text").toString())
                                              : request.value(u"row").toInt(-1);
    if (row < 0 || row >= combo->count()) {
        throw PortError{QStringLiteral("no such entry in %1").arg(target.control->label())};
    }
    combo->setFocus(Qt::MouseFocusReason);
    combo->setCurrentIndex(row);
    Q_EMIT combo->activated(row);
    Q_EMIT combo->textActivated(combo->itemText(row));
}

}  // namespace hands

namespace {

void lookAtOffers(const forms::Control& control, QJsonObject& seen) {
    if (const auto* list = dynamic_cast<const forms::ListBox*>(&control)) {
        seen[QStringLiteral("items")] = QJsonArray::fromStringList(list->items());
        seen[QStringLiteral("row")] = list->row();
    }
    if (const auto* combo = dynamic_cast<const forms::ComboBox*>(&control)) {
        seen[QStringLiteral("items")] = QJsonArray::fromStringList(combo->items());
        seen[QStringLiteral("row")] = static_cast<int>(combo->items().indexOf(combo->text()));
    }
    const auto* tool = dynamic_cast<const forms::ToolButton*>(&control);
    if (const auto* onOff = dynamic_cast<const forms::Switch*>(&control); onOff && (!tool || tool->toggles())) {
        seen[QStringLiteral("checked")] = onOff->checked();
    }
}

void lookAtText(const forms::Control& control, QJsonObject& seen) {
    if (const auto* text = dynamic_cast<const forms::TextControl*>(&control)) {
        tellColor(seen, QStringLiteral("color"), text->color());
        tellColor(seen, QStringLiteral("back"), text->back());
        if (text->points()) {
            seen[QStringLiteral("size")] = *text->points();
        }
    }
    if (const auto* box = dynamic_cast<const forms::TextBox*>(&control)) {
        seen[QStringLiteral("selection")] = QJsonObject{{QStringLiteral("start"), box->selectionStart()},
                                                        {QStringLiteral("length"), box->selectionLength()}};
    }
    if (const auto* rich = dynamic_cast<const forms::RichText*>(&control)) {
        seen[QStringLiteral("selection")] =
            QJsonObject{{QStringLiteral("start"), rich->SelStart()}, {QStringLiteral("length"), rich->SelLength()}};
    }
}

void lookAtDrawing(const forms::Control& control, const QWidget* widget, QJsonObject& seen) {
    if (const auto* bar = dynamic_cast<const forms::ScrollBar*>(&control)) {
        seen[QStringLiteral("value")] = bar->value();
        seen[QStringLiteral("min")] = bar->range().min;
        seen[QStringLiteral("max")] = bar->range().max;
    }
    if (const auto* marker = dynamic_cast<const forms::Marker*>(&control)) {
        tellColor(seen, QStringLiteral("color"), marker->color());
        seen[QStringLiteral("width")] = marker->side();
        seen[QStringLiteral("height")] = marker->side();
    }
    if (const auto* image = dynamic_cast<const forms::Image*>(&control)) {
        seen[QStringLiteral("picture")] = pictureOf(*image, widget);
    }
}

void lookAtPlace(const forms::Control& control, QJsonObject& seen) {
    if (const auto spot = control.spot()) {
        seen[QStringLiteral("left")] = spot->left;
        seen[QStringLiteral("top")] = spot->top;
    }
    if (const auto place = control.place()) {
        seen[QStringLiteral("left")] = place->left;
        seen[QStringLiteral("top")] = place->top;
        seen[QStringLiteral("width")] = place->width;
        seen[QStringLiteral("height")] = place->height;
    }
}

}  // namespace

QJsonObject look(const Target& target) {
    const forms::Control& control = *target.control;
    QJsonObject seen{{QStringLiteral("kind"), forms::kindName(control.kind())},
                     {QStringLiteral("text"), control.text()},
                     {QStringLiteral("visible"), control.visible()},
                     {QStringLiteral("onscreen"), onScreen(target)},
                     {QStringLiteral("enabled"), control.enabled()}};
    lookAtOffers(control, seen);
    lookAtText(control, seen);
    lookAtDrawing(control, target.widget, seen);
    lookAtPlace(control, seen);
    return seen;
}

QJsonObject format(const Target& target) {
    const auto* rich = dynamic_cast<const forms::RichText*>(target.control);
    if (!rich) {
        throw PortError{QStringLiteral("%1 is no rich text").arg(target.control->label())};
    }
    Runs runs;
    const QTextDocument& document = rich->document();
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        for (auto it = block.begin(); !it.atEnd(); ++it) {
            runs.add(it.fragment().text(), it.fragment().charFormat(), block.blockFormat());
        }
        // A paragraph keeps the attributes of the line end before it.
        if (block.next().isValid()) {
            runs.add(QStringLiteral("\n"), block.next().charFormat(), block.blockFormat());
        }
    }
    return {{QStringLiteral("runs"), runs.all()}};
}

}  // namespace port
