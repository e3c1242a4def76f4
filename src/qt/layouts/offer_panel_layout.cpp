#include "qt/layouts/offer_panel_layout.h"

#include <QEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>
#include <QShortcut>

#include "qt/calendar_view.h"
#include "qt/layouts/parts.h"

namespace qt {
namespace {

constexpr int kPanelWidth = 344;
constexpr int kLinesWithKeys = 9;

/// Shows and hides a caption with its field.
class CaptionFollower final : public QObject {
public:
    CaptionFollower(QLabel* caption, QWidget* field) : QObject(caption), caption_(caption) {
        field->installEventFilter(this);
        caption->setVisible(!field->isHidden());
    }

protected:
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() == QEvent::ShowToParent || event->type() == QEvent::HideToParent) {
            caption_->setVisible(event->type() == QEvent::ShowToParent);
        }
        return false;
    }

private:
    QLabel* caption_;
};

QListView* addList(QBoxLayout* column, const QString& caption, QListView* list, const QString& tip) {
    list->setFocusPolicy(Qt::TabFocus);
    list->setToolTip(tip);
    auto* label = newCaption(caption, list);
    new CaptionFollower(label, list);
    column->addWidget(label);
    column->addWidget(list, 1);
    return list;
}

/// Ctrl+1 to Ctrl+9 take the first lines of a list, wherever the focus is.
void addLineKeys(QListView* list) {
    for (int line = 0; line < kLinesWithKeys; ++line) {
        auto* key =
            new QShortcut(QKeySequence(Qt::CTRL | static_cast<Qt::Key>(Qt::Key_1 + line)), list->parentWidget());
        QObject::connect(key, &QShortcut::activated, list, [list, line] {
            if (const QModelIndex at = list->model()->index(line, 0); at.isValid()) {
                list->doubleClicked(at);
            }
        });
    }
}

QBoxLayout* freeEntry(Binder& bind, forms::TextBox& box, const QString& caption) {
    auto* entry = bind.line(box, caption);
    entry->setToolTip(QStringLiteral("Entrée ajoute ce texte au champ"));
    auto* row = newRow();
    row->addWidget(newCaption(caption, entry));
    row->addWidget(entry, 1);
    return row;
}

}  // namespace

QWidget* newOfferPanel(Binder& bind, const responses::PanelControls& controls, forms::TextBox* second) {
    auto* panel = new QWidget;
    panel->setFixedWidth(kPanelWidth);
    auto* column = newColumn(panel);
    QListView* phrases = addList(
        column, QStringLiteral("&Liste des réponses"), bind.list(controls.List1, QStringLiteral("Réponses mémorisées")),
        QStringLiteral("Double-cliquez sur une réponse, ou Entrée, pour l'ajouter au champ ; Echap y revient. "
                       "Ctrl+1 à Ctrl+9 : une des premières réponses"));
    addList(column, QStringLiteral("&Nombres"), bind.list(controls.List2, QStringLiteral("Nombres proposés")),
            QStringLiteral("Double-cliquez sur un nombre, ou Entrée, pour l'ajouter au champ ; Echap y revient"));
    column->addWidget(bind.calendar(controls.Calendar1, QStringLiteral("Calendrier")));
    QBoxLayout* row = freeEntry(bind, controls.Text1, QStringLiteral("Texte libre"));
    if (second) {
        column->addLayout(row);
        row = freeEntry(bind, *second, QStringLiteral("Texte libre 2"));
    }
    row->addWidget(bind.button(controls.CmdEfface));
    column->addLayout(row);
    addLineKeys(phrases);
    return panel;
}

}  // namespace qt
