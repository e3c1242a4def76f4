#include "readable.h"

#include <QStringList>

namespace {

class Page {
public:
    void operator()(const reports::SelAlignment& operation) {
        static const QStringList names{"gauche", "droite", "centre"};
        alignment_ = names.at(static_cast<int>(operation.value));
    }
    void operator()(const reports::SelFontSize& operation) { size_ = QString::number(operation.points); }
    void operator()(const reports::SelBold& operation) { bold_ = operation.value ? ", gras" : ", normal"; }
    void operator()(const reports::SelText& operation) {
        const QString now = QString("== %1, %2%3").arg(alignment_, size_, bold_);
        if (now != head_) {
            closePiece();
            head_ = now;
            text_ += head_ + u'\n';
        }
        text_ += QString(operation.text).replace("\r\n", "¶\n");
    }
    void operator()(const reports::SelStart& operation) {
        closePiece();
        text_ += QString("== curseur en %1\n").arg(operation.position);
    }
    void fail(base::ErrorNumber why) {
        closePiece();
        text_ += QString("== erreur %1\n").arg(static_cast<int>(why));
    }
    QString text() const { return text_; }

private:
    void closePiece() {
        if (!text_.isEmpty() && !text_.endsWith(u'\n')) {
            text_ += "|\n";
        }
    }

    QString alignment_ = "?", size_ = "?", bold_ = ", ?", head_, text_;
};

}  // namespace

QString readable(const reports::Report& report) {
    Page page;
    for (const reports::Operation& operation : report.operations) {
        std::visit(page, operation);
    }
    if (report.failure) {
        page.fail(*report.failure);
    }
    return page.text();
}

QString plain(const reports::Report& report) {
    QString text;
    for (const reports::Operation& operation : report.operations) {
        if (const auto* piece = std::get_if<reports::SelText>(&operation)) {
            text += piece->text;
        }
    }
    return text;
}
