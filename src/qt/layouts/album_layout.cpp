#include "qt/layouts/album_layout.h"

#include <QComboBox>
#include <QFormLayout>
#include <QFrame>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMenuBar>
#include <QPushButton>
#include <QRadioButton>

#include "qt/layouts/exam_parts.h"
#include "qt/layouts/parts.h"
#include "qt/picture_view.h"
#include "qt/section.h"
#include "qt/theme.h"

namespace qt {
namespace {

using theme::kGrid;

constexpr int kSideWidth = 296;
constexpr int kWallColumns = 5;
constexpr QSize kLeastThumbnail(96, 72);
constexpr int kPathPoints = 8;
constexpr int kLoadedHeight = 112;
constexpr int kTwipsPerPixel = 15;
// The strips of the small page above and below its pictures.
constexpr int kStripMargin = 8;
constexpr int kStripHeight = 28;

/// The album: the search at the left, the wall in the middle, the picture in hand or the sheet at the right.
class AlbumLayout {
public:
    AlbumLayout(pictures::Form20& form, FormWindow& window) : form_(form), window_(window), bind_(window) {}

    void build() {
        auto* all = newColumn(&window_, 2);
        all->setMenuBar(bind_.menuBar());
        auto* body = newRow();
        body->setSpacing(2 * kGrid);
        body->addWidget(side(search(), results()));
        body->addLayout(views(), 1);
        body->addWidget(side(actions(), pictureOrSheet()));
        all->addLayout(body, 1);
        window_.resize(1320, 700);
    }

private:
    static QWidget* side(QWidget* upper, QWidget* lower) {
        auto* column = new QWidget;
        column->setFixedWidth(kSideWidth);
        auto* parts = newColumn(column);
        parts->addWidget(upper);
        parts->addWidget(lower, 1);
        return column;
    }

    QWidget* search() {
        Section* section = bind_.section(form_.Frame1);
        auto* column = newColumn(section->body());
        auto* fields = newFields(nullptr);
        addLine(fields, QStringLiteral("Nom"), form_.TxtRechNom);
        addLine(fields, QStringLiteral("Date"), form_.TxtRechDate);
        addLine(fields, QStringLiteral("Echo n°"), form_.TxtRechNumEcho);
        addCombo(fields, QStringLiteral("Diagnostic"), form_.CmbRechDiag);
        addCombo(fields, QStringLiteral("Mot clef 1"), form_.CmbRechCrit1);
        addCombo(fields, QStringLiteral("Mot clef 2"), form_.CmbRechCrit2);
        addCombo(fields, QStringLiteral("Mot clef 3"), form_.CmbRechCrit3);
        column->addLayout(fields);
        column->addLayout(options({&form_.Option5, &form_.Option6, &form_.Option7, &form_.Option8, &form_.Option9}));
        column->addWidget(bind_.button(form_.Command1));
        return section;
    }

    QWidget* results() {
        auto* section = new Section(QStringLiteral("Clichés trouvés"));
        auto* column = newColumn(section->body());
        auto* lines = bind_.list(form_.ListNom, QStringLiteral("Clichés trouvés"));
        lines->setToolTip(QStringLiteral("Un clic sur une ligne, ou Entrée, montre le cliché en grand"));
        auto* paths = bind_.list(form_.List4, QStringLiteral("Fichiers des clichés trouvés"));
        paths->setToolTip(QStringLiteral("Un double clic sur un fichier, ou Entrée, le montre en grand"));
        column->addWidget(lines, 3);
        column->addWidget(paths, 2);
        return section;
    }

    QLayout* views() {
        auto* column = newColumn();
        auto* views = new QGridLayout;
        auto* places = wall();
        auto* large = bind_.picture(form_.Image2, QStringLiteral("Cliché en grand"));
        views->addWidget(places, 0, 0);
        views->addWidget(large, 0, 0);
        auto* below = underTheViews();
        coverWhileSeen(places, large, window_.widgetOf(form_.CmdFermer));
        column->addLayout(views, 1);
        column->addLayout(below);
        return column;
    }

    QWidget* wall() {
        auto* places = new QWidget;
        auto* grid = new QGridLayout(places);
        grid->setContentsMargins(0, 0, 0, 0);
        grid->setSpacing(kGrid);
        for (int i = 0; i < pictures::Wall::kPlaces; ++i) {
            grid->addLayout(place(i), i / kWallColumns, i % kWallColumns);
            grid->setRowStretch(i / kWallColumns, 1);
            grid->setColumnStretch(i % kWallColumns, 1);
        }
        return places;
    }

    QLayout* place(int index) {
        const QString number = QString::number(index + 1);
        auto* picture = bind_.picture(form_.Image1(index), QStringLiteral("Cliché ") + number);
        picture->setMinimumSize(kLeastThumbnail);
        picture->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
        auto* path = bind_.line(form_.TxtPath(index), QStringLiteral("Fichier du cliché ") + number);
        QFont small = path->font();
        small.setPointSize(kPathPoints);
        path->setFont(small);
        // The name of the file tells more than its folder.
        QObject::connect(path, &QLineEdit::textChanged, path, &QWidget::setToolTip);
        QObject::connect(
            path, &QLineEdit::textChanged, path, [path] { path->end(false); }, Qt::QueuedConnection);
        auto* column = newColumn();
        column->setSpacing(2);
        column->addWidget(picture, 1);
        column->addWidget(path);
        return column;
    }

    QLayout* underTheViews() {
        auto* row = newRow();
        row->addWidget(bind_.button(form_.CmdAffiche));
        auto* path = bind_.label(form_.LblPath);
        path->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
        path->setForegroundRole(QPalette::PlaceholderText);
        row->addWidget(path, 1);
        row->addWidget(bind_.button(form_.CmdImpr));
        row->addWidget(bind_.button(form_.CmdFermer));
        return row;
    }

    QWidget* actions() {
        auto* all = new QWidget;
        auto* column = newColumn(all);
        auto* name = bind_.label(form_.LblFilename);
        name->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
        auto* file = newRow();
        file->addWidget(bind_.label(form_.Label4));
        file->addWidget(name, 1);
        auto* buttons = newRow();
        buttons->addWidget(bind_.button(form_.CmdOuvrir));
        buttons->addWidget(bind_.button(form_.CmdAjouter));
        column->addLayout(buttons);
        column->addLayout(file);
        return all;
    }

    // They take turns in one place.
    QWidget* pictureOrSheet() {
        auto* place = new QWidget;
        auto* cell = new QGridLayout(place);
        cell->setContentsMargins(0, 0, 0, 0);
        cell->addWidget(values(), 0, 0);
        cell->addWidget(sheet(), 0, 0);
        return place;
    }

    QWidget* values() {
        Section* section = bind_.section(form_.Frame2);
        auto* column = newColumn(section->body());
        auto* loaded = bind_.picture(form_.ImgCharge, QStringLiteral("Cliché à classer"));
        loaded->setFixedHeight(kLoadedHeight);
        column->addWidget(loaded);
        auto* hint = bind_.label(form_.Label18);
        hint->setWordWrap(true);
        column->addWidget(hint);
        auto* done = bind_.label(form_.Label5);
        done->setForegroundRole(QPalette::Link);
        column->addWidget(done);
        auto* fields = newFields(nullptr);
        addLine(fields, QStringLiteral("Nom"), form_.TxtNom);
        addLine(fields, QStringLiteral("Prénom"), form_.TxtPrenom);
        addLine(fields, QStringLiteral("Date"), form_.TxtDate);
        addLine(fields, QStringLiteral("Echo n°"), form_.TxtNumEcho);
        addWord(fields, QStringLiteral("Diagnostic"), form_.CmbDiagno, form_.CmdAjouD);
        addWord(fields, QStringLiteral("Mot clef 1"), form_.CmbCrit1, form_.CmdAjouC1);
        addWord(fields, QStringLiteral("Mot clef 2"), form_.CmbCrit2, form_.CmdAjouC2);
        addWord(fields, QStringLiteral("Mot clef 3"), form_.CmbCrit3, form_.CmdAjouC3);
        column->addLayout(fields);
        column->addLayout(options({&form_.Option1, &form_.Option2, &form_.Option3, &form_.Option4}));
        column->addStretch(1);
        return section;
    }

    // The small page, on the scale of its twips.
    QWidget* sheet() {
        auto* room = new QWidget;
        auto* page = new QFrame;
        page->setFrameShape(QFrame::StyledPanel);
        page->setBackgroundRole(QPalette::Base);
        page->setAutoFillBackground(true);
        page->setFixedSize(pictures::kPreviewWidth / kTwipsPerPixel, pictures::kPreviewHeight / kTwipsPerPixel);
        bind_.plain(form_.PctImp, page);
        for (int i = form_.ImgImp.first(); i <= form_.ImgImp.last(); ++i) {
            auto* picture = bind_.picture(form_.ImgImp(i), QStringLiteral("Cliché %1 de la feuille").arg(i));
            picture->setStretched(true);
            picture->setParent(page);
        }
        fillStrips(page);
        auto* column = newColumn(room);
        column->addWidget(page, 0, Qt::AlignHCenter);
        column->addStretch(1);
        return room;
    }

    void fillStrips(QWidget* page) {
        auto* comment = bind_.line(form_.TxtImp, QStringLiteral("Commentaire de la feuille"));
        comment->setPlaceholderText(QStringLiteral("Commentaire"));
        auto* print = bind_.button(form_.CmdImp);
        auto* close = bind_.button(form_.CmdFerm);
        for (QWidget* widget : std::initializer_list<QWidget*>{comment, print, close}) {
            widget->setParent(page);
        }
        const int width = page->width() - 2 * kStripMargin;
        const int half = (width - kStripMargin) / 2;
        const int foot = page->height() - kStripHeight - 2;
        comment->setGeometry(kStripMargin, 2, width, kStripHeight);
        print->setGeometry(kStripMargin, foot, half, kStripHeight);
        close->setGeometry(2 * kStripMargin + half, foot, half, kStripHeight);
    }

    QLayout* options(std::initializer_list<forms::Option*> group) {
        constexpr int kColumns = 3;
        auto* grid = new QGridLayout;
        grid->setHorizontalSpacing(kGrid);
        grid->setVerticalSpacing(0);
        int at = 0;
        for (forms::Option* option : group) {
            grid->addWidget(bind_.option(*option), at / kColumns, at % kColumns);
            ++at;
        }
        return grid;
    }

    void addLine(QFormLayout* fields, const QString& caption, forms::TextBox& box) {
        fields->addRow(caption, bind_.line(box, caption));
    }

    void addCombo(QFormLayout* fields, const QString& caption, forms::ComboBox& box) {
        fields->addRow(caption, combo(caption, box));
    }

    void addWord(QFormLayout* fields, const QString& caption, forms::ComboBox& box, forms::Button& button) {
        auto* row = newRow();
        auto* made = combo(caption, box);
        auto* add = bind_.button(button);
        add->setAccessibleName(QStringLiteral("Ajouter à la liste : ") + caption);
        row->addWidget(made, 1);
        row->addWidget(add);
        fields->addRow(caption, row);
    }

    // As narrow as its column, however long its words.
    QComboBox* combo(const QString& caption, forms::ComboBox& box) {
        auto* made = bind_.combo(box, caption);
        made->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
        made->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
        return made;
    }

    pictures::Form20& form_;
    FormWindow& window_;
    Binder bind_;
};

}  // namespace

void layOutForm20(pictures::Form20& form, FormWindow& window) {
    AlbumLayout(form, window).build();
}

}  // namespace qt
