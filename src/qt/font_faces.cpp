#include "qt/font_faces.h"

#include <QHash>
#include <QRawFont>
#include <QtEndian>
#include <algorithm>
#include <array>
#include <deque>
#include <utility>
#include <vector>

namespace qt {
namespace {

// In the order in which a font lists them.
constexpr std::array kTables{"CFF ", "OS/2", "cmap", "cvt ", "fpgm", "glyf", "head",
                             "hhea", "hmtx", "loca", "maxp", "name", "post", "prep"};
constexpr quint32 kTrueType = 0x00010000;
constexpr quint32 kCompact = 0x4F54544F;  // "OTTO"
constexpr quint32 kHeaderSize = 12;
constexpr quint32 kEntrySize = 16;

using Table = std::pair<const char*, QByteArray>;

template <class Number>
void put(QByteArray& file, Number value) {
    value = qToBigEndian(value);
    file.append(reinterpret_cast<const char*>(&value), sizeof value);
}

std::vector<Table> tablesOf(const QRawFont& font) {
    std::vector<Table> tables;
    for (const char* tag : kTables) {
        if (QByteArray table = font.fontTable(tag); !table.isEmpty()) {
            tables.emplace_back(tag, std::move(table));
        }
    }
    return tables;
}

bool holds(const std::vector<Table>& tables, const char* tag) {
    return std::any_of(tables.begin(), tables.end(),
                       [tag](const Table& table) { return qstrcmp(table.first, tag) == 0; });
}

// A table starts at a multiple of four bytes.
quint32 room(const QByteArray& table) {
    return (static_cast<quint32>(table.size()) + 3) / 4 * 4;
}

// The font's file, put together from the tables that the toolkit gives. Empty without outlines.
QByteArray fileOf(const QRawFont& font) {
    const std::vector<Table> tables = tablesOf(font);
    const bool compact = holds(tables, "CFF ");
    if (!compact && !holds(tables, "glyf")) {
        return {};
    }
    QByteArray file;
    put(file, compact ? kCompact : kTrueType);
    put(file, static_cast<quint16>(tables.size()));
    file.append(6, '\0');  // hints for a search in the list, which is short
    quint32 offset = kHeaderSize + kEntrySize * static_cast<quint32>(tables.size());
    for (const auto& [tag, table] : tables) {
        file.append(tag, 4);
        put(file, quint32{0});  // a sum that nobody checks
        put(file, offset);
        put(file, static_cast<quint32>(table.size()));
        offset += room(table);
    }
    for (const auto& [tag, table] : tables) {
        file.append(table).append(room(table) - static_cast<quint32>(table.size()), '\0');
    }
    return file;
}

// What the font was asked to be and isn't by itself: the weight class and the bit for italics of its OS/2 table.
unsigned int synthesized(const QRawFont& font) {
    constexpr int kWeightClass = 4;
    constexpr int kSelection = 62;
    constexpr quint16 kItalic = 1;
    const QByteArray os2 = font.fontTable("OS/2");
    const auto number = [&os2](int at) { return qFromBigEndian<quint16>(os2.constData() + at); };
    if (os2.size() < kSelection + 2) {
        return 0;
    }
    unsigned int styles = 0;
    if (font.weight() >= QFont::DemiBold && number(kWeightClass) < QFont::DemiBold) {
        styles |= CAIRO_FT_SYNTHESIZE_BOLD;
    }
    if (font.style() != QFont::StyleNormal && !(number(kSelection) & kItalic)) {
        styles |= CAIRO_FT_SYNTHESIZE_OBLIQUE;
    }
    return styles;
}

/// All faces met so far, with what they stand on.
class Faces {
public:
    Faces() { FT_Init_FreeType(&library_); }

    cairo_font_face_t* of(const QRawFont& font) {
        const unsigned int styles = synthesized(font);
        const auto key = qMakePair(font.fontTable("head") + font.fontTable("name"), styles);
        const auto known = faces_.constFind(key);
        return known != faces_.constEnd() ? *known : *faces_.insert(key, make(font, styles));
    }

private:
    cairo_font_face_t* make(const QRawFont& font, unsigned int styles) {
        const QByteArray& file = files_.emplace_back(fileOf(font));
        FT_Face face = nullptr;
        if (file.isEmpty() || FT_New_Memory_Face(library_, reinterpret_cast<const FT_Byte*>(file.constData()),
                                                 static_cast<FT_Long>(file.size()), 0, &face) != 0) {
            return nullptr;
        }
        cairo_font_face_t* made = cairo_ft_font_face_create_for_ft_face(face, FT_LOAD_NO_HINTING);
        cairo_ft_font_face_set_synthesize(made, styles);
        return made;
    }

    FT_Library library_ = nullptr;
    std::deque<QByteArray> files_;
    QHash<QPair<QByteArray, unsigned int>, cairo_font_face_t*> faces_;
};

}  // namespace

cairo_font_face_t* faceOf(const QRawFont& font) {
    // Never let go of: the library keeps fonts of its own that stand on these.
    static auto* const faces = new Faces;
    return faces->of(font);
}

}  // namespace qt
