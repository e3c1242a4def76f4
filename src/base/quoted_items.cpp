#include "base/quoted_items.h"

namespace base {
namespace {

bool isLineEnd(QChar c) {
    return c == u'\r' || c == u'\n';
}

bool isBlank(QChar c) {
    return c == u' ' || c == u'\t';
}

class ItemReader {
public:
    explicit ItemReader(QStringView text) : text_(text) {}

    QStringList all() {
        QStringList items;
        while (findItem()) {
            items << (text_[at_] == u'"' ? quoted() : plain());
            passEnd();
        }
        return items;
    }

private:
    bool atEnd() const { return at_ == text_.size(); }

    bool findItem() {
        while (!atEnd() && (isBlank(text_[at_]) || isLineEnd(text_[at_]))) {
            ++at_;
        }
        return !atEnd();
    }

    QString quoted() {
        QString item;
        for (++at_; !atEnd(); ++at_) {
            if (text_[at_] == u'"') {
                if (isDoubled()) {
                    ++at_;
                } else if (closes()) {
                    ++at_;
                    break;
                }
            }
            item += text_[at_];
        }
        return item;
    }

    bool isDoubled() const { return at_ + 1 < text_.size() && text_[at_ + 1] == u'"'; }

    bool closes() const {
        qsizetype next = at_ + 1;
        while (next < text_.size() && isBlank(text_[next])) {
            ++next;
        }
        return next == text_.size() || text_[next] == u',' || isLineEnd(text_[next]);
    }

    QString plain() {
        const qsizetype from = at_;
        while (!atEnd() && text_[at_] != u',' && !isLineEnd(text_[at_])) {
            ++at_;
        }
        return text_.sliced(from, at_ - from).trimmed().toString();
    }

    void passEnd() {
        while (!atEnd() && isBlank(text_[at_])) {
            ++at_;
        }
        if (!atEnd() && text_[at_] == u',') {
            ++at_;
        }
    }

    QStringView text_;
    qsizetype at_ = 0;
};

}  // namespace

QString quotedItem(const QString& text) {
    QString inside = text;
    return u'"' + inside.replace(u'"', QStringLiteral("\"\"")) + u'"';
}

QStringList readItems(QStringView text) {
    return ItemReader(text).all();
}

}  // namespace base
