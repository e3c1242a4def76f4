#include "qt/layouts/pictures_layouts.h"

#include <QComboBox>
#include <QFrame>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QPainter>
#include <QPushButton>
#include <QRadioButton>
#include <QShortcut>
#include <QSlider>

#include "qt/binder.h"
#include "qt/key_filter.h"
#include "qt/layouts/exam_parts.h"
#include "qt/layouts/parts.h"
#include "qt/picture_view.h"
#include "qt/section.h"
#include "qt/theme.h"

namespace qt {
namespace {

using theme::kGrid;

constexpr int kColumns = 4;
constexpr QSize kLiveSize(404, 324);
constexpr QSize kThumbnailSize(164, 132);

/// The mark of a selected picture: a hook in the accent colour.
class SelectionMark final : public QWidget {
public:
    SelectionMark() {
        setFixedSize(kSide, kSide);
        setAttribute(Qt::WA_TransparentForMouseEvents);
    }

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(palette().color(QPalette::HighlightedText), 1));
        painter.setBrush(palette().brush(QPalette::Highlight));
        painter.drawEllipse(rect().adjusted(1, 1, -1, -1));
        painter.setPen(
            QPen(palette().color(QPalette::HighlightedText), 2.5, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        painter.drawPolyline(QPolygonF({QPointF(7, 12.5), QPointF(11, 16.5), QPointF(17, 8.5)}));
    }

private:
    static constexpr int kSide = 24;
};

class Form19Layout {
public:
    Form19Layout(pictures::Form19& form, FormWindow& window) : form_(form), window_(window), bind_(window) {}

    void build() {
        auto* all = newColumn(&window_, 2);
        all->setMenuBar(bind_.menuBar());
        all->addWidget(strip());
        auto* body = newRow();
        body->setSpacing(2 * kGrid);
        body->addLayout(live());
        auto* below = actions();
        body->addLayout(wallOrView(), 1);
        all->addLayout(body, 1);
        all->addLayout(below);
        captureByKey();
        window_.resize(1240, 680);
    }

private:
    QWidget* strip() {
        ExamStrip strip(bind_, ExamStrip::Ground::Window);
        auto* title = bind_.combo(form_.CmbCivilite, QStringLiteral("Civilité"));
        title->setFixedWidth(90);
        strip.value(QStringLiteral("Civilité"), title);
        addLine(strip, form_.TxtNom, QStringLiteral("Nom"), 20);
        addLine(strip, form_.TxtPrenom, QStringLiteral("Prénom"), 16);
        addLine(strip, form_.txtDatexam, QStringLiteral("Date de l'Examen"), 10);
        addLine(strip, form_.TxtNumEcho, QStringLiteral("Echographie N°"), 4);
        strip.nextLine();
        addLine(strip, form_.TxtEntete, QStringLiteral("En-tête de la planche"), 60);
        return strip.widget();
    }

    void addLine(ExamStrip& strip, forms::TextBox& box, const QString& caption, int characters) {
        strip.value(caption, narrowLine(bind_, box, caption, characters));
    }

    QLayout* live() {
        auto* column = newColumn();
        auto* section = new Section(QStringLiteral("Image en direct"));
        auto* inside = newColumn(section->body());
        auto* view = bind_.picture(form_.ezVidCap1, QStringLiteral("Image en direct"));
        view->setFixedSize(kLiveSize);
        view->setPlaceholder(QStringLiteral("Aucune image de la carte vidéo"));
        view->setQuick(true);
        inside->addWidget(view);
        inside->addWidget(bind_.button(form_.Command4));
        column->addWidget(section);
        auto* sheet = new Section(QStringLiteral("Clichés par planche"));
        auto* options = newRow(sheet->body());
        for (forms::Option* option : {&form_.Option2, &form_.Option4, &form_.Option6, &form_.Option8}) {
            options->addWidget(bind_.option(*option));
        }
        column->addWidget(sheet);
        column->addStretch(1);
        return column;
    }

    // The picture in full size lies over the wall.
    QLayout* wallOrView() {
        auto* both = new QGridLayout;
        QWidget* panel = wall();
        auto* view = bind_.picture(form_.Image3, QStringLiteral("Cliché en grand"));
        both->addWidget(panel, 0, 0);
        both->addWidget(view, 0, 0);
        coverWhileSeen(panel, view, window_.widgetOf(form_.Command6));
        return both;
    }

    QWidget* wall() {
        auto* section = new Section(QStringLiteral("Clichés"));
        auto* grid = new QGridLayout(section->body());
        grid->setContentsMargins(0, 0, 0, 0);
        grid->setSpacing(kGrid);
        for (int slot = 1; slot <= pictures::Form19::kSlots; ++slot) {
            grid->addWidget(place(slot), (slot - 1) / kColumns, (slot - 1) % kColumns);
        }
        return section;
    }

    QWidget* place(int slot) {
        auto* view = bind_.picture(form_.Image2(slot), QStringLiteral("Cliché %1").arg(slot));
        view->setMinimumSize(kThumbnailSize);
        view->setPlaceholder(QString::number(slot));
        auto* inside = newColumn(view, 1);
        inside->addWidget(bind_.plain(form_.Image1(slot), new SelectionMark), 0, Qt::AlignTop | Qt::AlignRight);
        return view;
    }

    QLayout* actions() {
        auto* row = newRow();
        for (forms::Button* control : {&form_.Command1, &form_.Command5, &form_.Command2, &form_.Command3}) {
            row->addWidget(bind_.button(*control));
        }
        row->addStretch(1);
        row->addWidget(bind_.button(form_.Command6));
        return row;
    }

    void captureByKey() {
        auto* key = new QShortcut(Qt::Key_F4, &window_);
        key->setAutoRepeat(false);
        QObject::connect(key, &QShortcut::activated, &window_,
                         [window = &window_, &form = form_] { window->act([&form] { form.Command4.click(); }); });
    }

    pictures::Form19& form_;
    FormWindow& window_;
    Binder bind_;
};

}  // namespace

void layOutForm19(pictures::Form19& form, FormWindow& window) {
    Form19Layout(form, window).build();
}

void layOutFrmCpr(pictures::FrmCpr& form, FormWindow& window) {
    Binder bind(window);
    auto* all = newColumn(&window, 3);
    all->addWidget(bind.label(form.Label5));
    auto* scale = new QGridLayout;
    scale->setHorizontalSpacing(2 * kGrid);
    scale->addWidget(bind.label(form.Label3), 0, 0);
    scale->addWidget(bind.label(form.Label4), 0, 1, Qt::AlignRight);
    auto* slider = bind.slider(form.HScroll1, form.Label5.text());
    scale->addWidget(slider, 1, 0, 1, 2);
    scale->addWidget(bind.label(form.Label1), 2, 0);
    scale->addWidget(bind.label(form.Label2), 2, 1, Qt::AlignRight);
    all->addLayout(scale);
    auto* row = newRow();
    auto* quality = narrowLine(bind, form.TxtQuality, QStringLiteral("Qualité"), 5);
    row->addWidget(newCaption(QStringLiteral("&Qualité (1 à 100)"), quality));
    row->addWidget(quality);
    row->addStretch(1);
    row->addWidget(bind.button(form.Command3));
    row->addWidget(bind.button(form.Command2));
    all->addLayout(row);
    window.setMinimumWidth(460);
}

}  // namespace qt
