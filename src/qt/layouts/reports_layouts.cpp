#include "qt/layouts/reports_layouts.h"

#include <QMenuBar>
#include <QResizeEvent>
#include <QScreen>
#include <QStyle>
#include <QTextEdit>
#include <QToolButton>

#include "forms/desk.h"
#include "qt/binder.h"
#include "qt/layouts/parts.h"
#include "qt/page_view.h"
#include "qt/theme.h"

namespace qt {
namespace {

using theme::kGrid;

constexpr int kTwipsPerPixel = 15;
constexpr QSize kLeastInside(420, 240);

/// The inside of the editor's window: the toolbar on top; the form tells where the text stands.
class EditorPane final : public QWidget {
public:
    EditorPane(reports::RicheT& form, FormWindow& window) : form_(form), window_(window), bind_(window) {
        setMinimumSize(kLeastInside);
        addTools();
        PageView* page = bind_.page(form.RichTextBox1, QStringLiteral("Compte rendu"));
        page->setParent(this);
    }

protected:
    void resizeEvent(QResizeEvent* event) override {
        tools_->setGeometry(kGrid, 0, width() - 2 * kGrid, tools_->sizeHint().height());
        if (window_.alive()) {
            form_.desk().act([&] {
                form_.Form_Resize(event->size().width() * kTwipsPerPixel, event->size().height() * kTwipsPerPixel);
            });
        }
    }

private:
    void addTools() {
        tools_ = new QWidget(this);
        auto* row = newRow(tools_);
        row->setContentsMargins(0, 2, 0, 2);
        row->setSpacing(2);
        for (const auto& control : form_.tbToolBar.buttons()) {
            if (startsGroup(control->key())) {
                row->addSpacing(kGrid);
            }
            QToolButton* button = bind_.tool(*control);
            button->setIconSize(QSize(18, 18));
            button->setFixedSize(28, 28);
            button->setShortcut(shortcutOf(control->key()));
            row->addWidget(button);
        }
        row->addStretch(1);
    }

    static bool startsGroup(const QString& key) {
        return key == u"Couper" || key == u"Gras" || key == u"Aligner à gauche" || key == u"Quitter";
    }

    static QKeySequence shortcutOf(const QString& key) {
        static const QMap<QString, QString> shortcuts{
            {QStringLiteral("Imprimer"), QStringLiteral("Ctrl+P")},
            {QStringLiteral("Gras"), QStringLiteral("Ctrl+B")},
            {QStringLiteral("Italique"), QStringLiteral("Ctrl+I")},
            {QStringLiteral("Souligné"), QStringLiteral("Ctrl+U")},
            {QStringLiteral("Aligner à gauche"), QStringLiteral("Ctrl+L")},
            {QStringLiteral("Centrer"), QStringLiteral("Ctrl+E")},
            {QStringLiteral("Aligner à droite"), QStringLiteral("Ctrl+R")},
        };
        return QKeySequence(shortcuts.value(key));
    }

    reports::RicheT& form_;
    FormWindow& window_;
    Binder bind_;
    QWidget* tools_ = nullptr;
};

// The height stops at the screen, its frame included.
QSize onScreen(const reports::RicheT::Size& size, const FormWindow& window) {
    const int frame = window.style()->pixelMetric(QStyle::PM_TitleBarHeight);
    const int room = window.screen()->availableGeometry().height() - frame;
    return {size.width / kTwipsPerPixel, qMin(size.height / kTwipsPerPixel, room)};
}

}  // namespace

void layOutRicheT(reports::RicheT& form, FormWindow& window) {
    auto* all = newColumn(&window);
    all->setMenuBar(Binder(window).menuBar());
    all->addWidget(new EditorPane(form, window), 1);
    window.widgetOf(form.RichTextBox1)->setFocus();
    window.resize(onScreen(form.size(), window));
}

}  // namespace qt
