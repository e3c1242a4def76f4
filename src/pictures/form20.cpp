#include "pictures/form20.h"

#include <QFileInfo>
#include <algorithm>

#include "base/dates.h"
#include "base/errors.h"
#include "base/numbers.h"
#include "dossier/paths.h"
#include "pictures/picture_file.h"

namespace pictures {
namespace {

const QString kBaseName = QStringLiteral("ECHOTEK.MDB");
const QString kImages = QStringLiteral("Images (*.BMP;*.JPG;*.ICO)|*.BMP;*.JPG;*.ICO");
const QString kPath = QStringLiteral("NOMPATH");
// How many characters of a line hold the picture's number.
constexpr int kNumberWidth = 5;

// Whether a failure on the way to a picture tells that its line or its file is at fault, not the album.
bool leadsNowhere(base::ErrorNumber number) {
    using enum base::ErrorNumber;
    constexpr std::array kFaults{TypeMismatch, Overflow,         QuerySyntax, FileNotFound,
                                 PathNotFound, PermissionDenied, DeviceError, InvalidPicture};
    return std::ranges::find(kFaults, number) != kFaults.end();
}

// An empty box stands for no word at all.
store::Value wordOf(const forms::ComboBox& box) {
    return box.text().isEmpty() ? store::Value() : store::Value(box.text());
}

}  // namespace

Form20::Form20(ports::Surroundings& around)
    : Form(around.desk, kName.toString(), QStringLiteral("Album")),
      around_(around),
      keyWords_(
          base_, around.boxes,
          {{{CmbRechDiag, CmbDiagno}, {CmbRechCrit1, CmbCrit1}, {CmbRechCrit2, CmbCrit2}, {CmbRechCrit3, CmbCrit3}}}),
      wall_(Image1, TxtPath, around.boxes) {
    fillFrames();
    hideAtFirst();
    wireMenus();
    wirePictureInHand();
    wireSearch();
    wireViews();
    wireSheet();
}

void Form20::fillFrames() {
    Fichiers.holds(Ouvrir, AjoutAlb, Imprim, Qui);
    Recherche.holds(TriDate, TriNom, TriDiag);
    Critri.holds(Ajouter, Supprimer);
    Ajouter.holds(ADiagno, AClef1, AClef2, AClef3);
    Supprimer.holds(SDiagno, SClef1, SClef2, SClef3);
    Interro.holds(Aide);
    Frame2.holds(ImgCharge, Label18, Label5, TxtNom, TxtPrenom, TxtDate, TxtNumEcho, Option1, Option2, Option3, Option4,
                 CmbDiagno, CmdAjouD, CmbCrit1, CmdAjouC1, CmbCrit2, CmdAjouC2, CmbCrit3, CmdAjouC3);
    Frame1.holds(TxtRechNom, TxtRechDate, TxtRechNumEcho, CmbRechDiag, CmbRechCrit1, CmbRechCrit2, CmbRechCrit3,
                 Option5, Option6, Option7, Option8, Option9, Command1);
    PctImp.holds(TxtImp, CmdImp, CmdFerm);
    for (int i = ImgImp.first(); i <= ImgImp.last(); ++i) {
        PctImp.holds(ImgImp(i));
    }
    for (int place = 0; place < Wall::kPlaces; ++place) {
        TxtPath(place).setLocked(true);
    }
}

void Form20::hideAtFirst() {
    Label18.hide();
    Label5.hide();
    PctImp.hide();
    CmdAffiche.hide();
    closeView();
}

void Form20::wireMenus() {
    Ouvrir.onClick = [this] { openFile(); };
    AjoutAlb.onClick = [this] { classPicture(); };
    Qui.onClick = [this] { unload(); };
    TriDate.onClick = [this] { TRI_DATE(); };
    TriNom.onClick = [this] { TRI_NOM(); };
    TriDiag.onClick = [this] { TRI_DIAG(); };
    ADiagno.onClick = [this] { AJOU_DIAGNO(); };
    AClef1.onClick = [this] { AJOU_CRIT1(); };
    AClef2.onClick = [this] { AJOU_CRIT2(); };
    AClef3.onClick = [this] { AJOU_CRIT3(); };
    SDiagno.onClick = [this] { keyWords_.remove(0); };
    SClef1.onClick = [this] { keyWords_.remove(1); };
    SClef2.onClick = [this] { keyWords_.remove(2); };
    SClef3.onClick = [this] { keyWords_.remove(3); };
    Aide.onClick = [this] { around_.help.showContents(around_.manual()); };
}

void Form20::wirePictureInHand() {
    CmdOuvrir.onClick = [this] { openFile(); };
    CmdAjouter.onClick = [this] { classPicture(); };
    CmdAjouD.onClick = CmbDiagno.onDoubleClick = [this] { AJOU_DIAGNO(); };
    CmdAjouC1.onClick = CmbCrit1.onDoubleClick = [this] { AJOU_CRIT1(); };
    CmdAjouC2.onClick = CmbCrit2.onDoubleClick = [this] { AJOU_CRIT2(); };
    CmdAjouC3.onClick = CmbCrit3.onDoubleClick = [this] { AJOU_CRIT3(); };
}

void Form20::wireSearch() {
    Command1.onClick = [this] { searchAll(); };
    CmdAffiche.onClick = [this] { showPage(); };
}

void Form20::wireViews() {
    for (int place = 0; place < Wall::kPlaces; ++place) {
        Image1(place).onDoubleClick = [this, place] { viewFromWall(place); };
    }
    List4.onDoubleClick = [this] { viewFromPaths(); };
    ListNom.onClick = [this] { viewFromLines(); };
    CmdFermer.onClick = [this] { closeView(); };
}

void Form20::wireSheet() {
    CmdImpr.onClick = [this] { addToSheet(); };
    CmdImp.onClick = [this] { Imprime(); };
    CmdFerm.onClick = [this] { closeSheet(); };
    Imprim.onClick = [this] { chooseAndPrint(); };
}

void Form20::load() {
    const QString path = around_.settings.read(ports::kApplication, ports::kSection, QStringLiteral("CHEMINS"));
    base_.setPath(path);
    if (!dossier::endsInName(path, kBaseName)) {
        around_.boxes.message(dossier::missingBaseMessage(kBaseName));
        return;
    }
    keyWords_.fill();
}

void Form20::openFile() {
    const QString path = around_.fileDialogs.open(kImages);
    if (path.isEmpty()) {
        return;
    }
    ImgCharge.setPicture(loadPicture(path));
    LblPath.setText(path);
    LblFilename.setText(QFileInfo(path).fileName());
    TxtNom.setText({});
    TxtPrenom.setText({});
    TxtDate.setText(base::shortDate(around_.clock.today()));
    Label18.show();
}

store::Value Form20::chosenKind() const {
    int kind = 0;
    for (const forms::Option* option : {&Option1, &Option2, &Option3, &Option4}) {
        ++kind;
        if (option->checked()) {
            return QString::number(kind);
        }
    }
    return {};
}

void Form20::classPicture() {
    store::Recordset pictures = base_.open(QStringLiteral("SELECT*FROM ECHOS "));
    try {
        addTo(pictures);
    } catch (const base::RuntimeError&) {
        around_.boxes.message(QStringLiteral("Erreur de manipulation, Fichier dèjà saisi ou sans nom!"));
        return;
    }
    ImgCharge.clear();
    Label5.setText(QStringLiteral("OK Cliché Classé"));
    Label5.show();
    Label18.hide();
}

void Form20::addTo(store::Recordset& pictures) const {
    pictures.addNew();
    pictures.set(QStringLiteral("Nom"), TxtNom.text());
    pictures.set(QStringLiteral("Prenom"), TxtPrenom.text());
    pictures.set(QStringLiteral("DATEXAM"), TxtDate.text());
    pictures.set(QStringLiteral("NOMFICH"), LblFilename.text());
    pictures.set(kPath, LblPath.text());
    pictures.set(QStringLiteral("DIAGNO"), wordOf(CmbDiagno));
    pictures.set(QStringLiteral("Typexam"), chosenKind());
    pictures.set(QStringLiteral("CRIT1"), wordOf(CmbCrit1));
    pictures.set(QStringLiteral("CRIT2"), wordOf(CmbCrit2));
    pictures.set(QStringLiteral("CRIT3"), wordOf(CmbCrit3));
    pictures.update();
}

QString Form20::wantedKind() const {
    int kind = 0;
    for (const forms::Option* option : {&Option5, &Option6, &Option7, &Option8}) {
        ++kind;
        if (option->checked()) {
            return QString::number(kind);
        }
    }
    return {};
}

void Form20::searchAll() {
    const forms::BusyPointer busy(*this);
    wall_.clear();
    clearLists();
    showFound(search(base_, {.diagnosis = CmbRechDiag.text(),
                             .surname = TxtRechNom.text(),
                             .date = TxtRechDate.text(),
                             .words = {CmbRechCrit1.text(), CmbRechCrit2.text(), CmbRechCrit3.text()},
                             .kind = wantedKind()}));
}

void Form20::searchSorted(SortedSearch by, const QString& text) {
    if (text.isEmpty()) {
        return;
    }
    const forms::BusyPointer busy(*this);
    clearLists();
    showFound(search(base_, by, text));
}

void Form20::clearLists() {
    ListNom.clear();
    List4.clear();
    wall_.restart();
}

void Form20::showFound(const FoundPictures& found) {
    ListNom.setItems(found.lines);
    List4.setItems(found.paths);
    CmdAffiche.setVisible(!found.paths.isEmpty());
    if (found.paths.isEmpty()) {
        around_.boxes.message(QStringLiteral("Pas de cliché trouvé"));
    }
}

void Form20::showPage() {
    const forms::BusyPointer busy(*this);
    wall_.showNext(List4.items());
}

store::Recordset Form20::recordOf(QStringView field, const QString& text) const {
    store::Recordset found = base_.open(QStringLiteral("SELECT * FROM ECHOS WHERE ") + holds(field, text));
    found.findFirst(holds(field, text));
    if (found.noMatch()) {
        throw base::RuntimeError(base::ErrorNumber::NoCurrentRecord);
    }
    return found;
}

void Form20::viewFromWall(int place) {
    if (!Image1(place).empty()) {
        const QString path = TxtPath(place).text();
        view(recordOf(kPath, path), path);
    }
}

void Form20::viewFromPaths() {
    if (List4.row() >= 0) {
        QString path = List4.text();
        viewOrDeclass(path, [&] { view(recordOf(kPath, path), path); });
    }
}

// A line that a sorted search made begins with no number: it leads nowhere, and its path stays empty.
void Form20::viewFromLines() {
    if (ListNom.row() < 0) {
        return;
    }
    QString path;
    viewOrDeclass(path, [&] {
        const int number = base::toInt32(base::toNumber(ListNom.text().left(kNumberWidth)));
        const store::Recordset record = recordOf(u"NUMINT", QString::number(number));
        path = record.text(kPath);
        view(record, path);
        TxtNumEcho.setText(record.text(QStringLiteral("NUMECHO")));
    });
}

template <class Step>
void Form20::viewOrDeclass(const QString& path, Step step) {
    try {
        step();
    } catch (const base::RuntimeError& error) {
        if (!leadsNowhere(error.number())) {
            throw;
        }
        askToDeclass(path);
    }
}

void Form20::view(const store::Recordset& record, const QString& path) {
    Image2.setPicture(loadPicture(path));
    Image2.show();
    CmdImpr.show();
    CmdFermer.show();
    LblPath.setText(record.text(kPath));
    TxtNom.setText(record.text(QStringLiteral("Nom")));
    TxtPrenom.setText(record.text(QStringLiteral("Prenom")));
    TxtDate.setText(record.text(QStringLiteral("DATEXAM")));
    CmbDiagno.setText(record.text(QStringLiteral("DIAGNO")));
    LblFilename.setText(record.text(QStringLiteral("NOMFICH")));
}

void Form20::closeView() {
    Image2.hide();
    CmdImpr.hide();
    CmdFermer.hide();
}

// An empty path is part of every path: the first record of all goes then.
void Form20::askToDeclass(const QString& path) {
    if (!around_.boxes.ask(QStringLiteral("Ce cliché a été déclassé, Voulez supprimer ce classement ?"))) {
        return;
    }
    store::Recordset found = base_.open(QStringLiteral("SELECT * FROM ECHOS WHERE ") + holds(kPath, path));
    found.findFirst(holds(kPath, path));
    if (!found.noMatch()) {
        found.remove();
    }
}

void Form20::openSheet() {
    PctImp.show();
    Frame2.hide();
    CmdOuvrir.hide();
    CmdAjouter.hide();
    LblFilename.hide();
    Label4.hide();
    TxtImp.setFocus();
}

void Form20::closeSheet() {
    emptySheet();
    PctImp.hide();
    Frame2.show();
    CmdOuvrir.show();
    CmdAjouter.show();
    LblFilename.show();
    Label4.show();
}

void Form20::emptySheet() {
    sheet_.clear();
    for (int i = ImgImp.first(); i <= ImgImp.last(); ++i) {
        ImgImp(i).clear();
    }
    calls_ = 0;
}

// A picture that can't be read has counted all the same.
void Form20::addToSheet() {
    openSheet();
    ++calls_;
    if (calls_ > kMostOnSheet) {
        emptySheet();
        return;
    }
    sheet_.push_back(loadPicture(LblPath.text()));
    arrangePreview();
    ImgImp(static_cast<int>(sheet_.size())).setPicture(sheet_.back());
}

void Form20::arrangePreview() {
    const Arrangement& arrangement = arrangementFor(kOnScreen, static_cast<int>(sheet_.size()));
    for (int i = 0; i < kMostOnSheet; ++i) {
        forms::Image& place = ImgImp(i + 1);
        place.setVisible(i < arrangement.places);
        if (i < arrangement.places) {
            const Corner corner = arrangement.corners.at(static_cast<std::size_t>(i));
            place.setPlace({corner.x, corner.y, arrangement.width, arrangement.height});
        }
    }
}

QString Form20::captureHeading() const {
    return desk().at(QStringLiteral("Form19")).find(u"TxtEntete")->text();
}

std::vector<SheetLine> Form20::ENTETE() const {
    return {
        openingLine(),
        {.text = captureHeading(), .bold = true},
        {.text = {}, .bold = true},
        {.text = TxtNom.text() + u' ' + TxtPrenom.text(), .bold = true},
        {.text = TxtDate.text()},
        {.text = TxtImp.text()},
        footLine(),
    };
}

void Form20::print(ports::Printer& printer) const {
    if (sheet_.empty()) {
        return;
    }
    const std::vector<SheetLine> header = ENTETE();
    SheetPage page(printer, title());
    for (const SheetLine& line : header) {
        page.print(line);
    }
    page.draw(sheet_, arrangementFor(kOnPaper, static_cast<int>(sheet_.size())));
    page.end();
}

void Form20::Imprime() {
    if (sheet_.empty()) {
        return;
    }
    const auto printer = around_.printers.standard();
    if (!printer) {
        throw base::RuntimeError(base::ErrorNumber::DeviceError);
    }
    print(*printer);
}

void Form20::chooseAndPrint() {
    around_.printers.choose([this](ports::Printer& printer) { print(printer); });
}

}  // namespace pictures
