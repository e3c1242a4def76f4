#include "store/tables.h"

#include <algorithm>
#include <initializer_list>
#include <iterator>
#include <utility>

namespace store {
namespace {

constexpr auto kHiddenRowNumber = u"_id";

using Fields = std::vector<Field>;

Field field(const char16_t* name, FieldKind kind) {
    Field made;
    made.name = QString::fromUtf16(name);
    made.kind = kind;
    return made;
}

Field number(const char16_t* name) {
    return field(name, FieldKind::Number);
}

Field date(const char16_t* name) {
    return field(name, FieldKind::Date);
}

Field text(const char16_t* name) {
    return field(name, FieldKind::Text);
}

/// A field of which the store asks more.
Field with(Field field, std::initializer_list<bool Field::*> demands) {
    for (const auto demand : demands) {
        field.*demand = true;
    }
    return field;
}

/// Text fields, named in one text with blanks between.
Fields texts(const char16_t* names) {
    Fields fields;
    for (const QString& name : QString::fromUtf16(names).split(u' ')) {
        fields.push_back({name, FieldKind::Text});
    }
    return fields;
}

Fields operator+(Fields fields, Fields more) {
    std::ranges::move(more, std::back_inserter(fields));
    return fields;
}

Fields patientTail() {
    return texts(u"Prenom NOMJF") + Fields{date(u"DATENAISS")} +
           texts(
               u"RUE1 RUE2 VILLE CODEPOST TELEPHONE FAX PROFESSION CATSOCPRO SEXE CIVILITEE NUMSECSOC ASSURE DIVERS1 "
               u"DIVERS2 DIVERS3 DIVERS4 PRISEENCHARGE") +
           Fields{date(u"DATEFINPRISENCHARGE")} +
           texts(
               u"CARTESANTE DCD PERDUDEVUE MEDTT1 MEDTT2 MEDTT3 MEDTT4 CAISSE Ranggem QUALITE DROITS EMAIL "
               u"ALSACEMOSELLE TIERSPAYANT");
}

Fields patientFields() {
    Fields fields = Fields{with(number(u"Numint"), {&Field::required, &Field::sixteenBits}),
                           with(text(u"Nom"), {&Field::required})} +
                    patientTail();
    for (Field& field : fields) {
        field.refusesEmpty = field.kind == FieldKind::Text;
    }
    return fields;
}

Fields civilityFields() {
    return Fields{with(number(u"Numint"), {&Field::numbered, &Field::sixteenBits}),
                  with(text(u"Nom"), {&Field::required})} +
           patientTail();
}

Fields obstetricFields() {
    return Fields{number(u"Numero"), number(u"NUMECHO")} +
           texts(
               u"TYPECHO DATEXAM MACHINE DATECIRC OPERATEUR BMI DDR DG DGUS AGESTA MODEXAM CONDITIONS INDI UTERUS "
               u"ANNEXES DOUGLAS NBRE NBRS SITUATION Dim ASPECT MA MA2 MA3 AC AC2 AC3 LCC LCC2 LCC3 Bip Bip2 Bip3 "
               u"Fem FEM2 FEM3 NUQUE NUQUE2 NUQUE3 OSNEZ OSNEZ2 OSNEZ3 MORPHO MORPHO2 MORPHO3 Ca CA2 CA3 Cc Cc2 "
               u"Cc3 DIO DIO2 DIO3 CERV CERV2 CERV3 Dat Dat2 Dat3 Pied Pied2 Pied3 TIBIA TIBIA2 TIBIA3 Hum Hum2 "
               u"Hum3 ARTO ARTO2 ARTO3 ARTC ARTC2 ARTC3 UTD UTG LA PL CONCLU1");
}

Fields gynaecologyFields() {
    return Fields{number(u"Numero"), number(u"NUMECHO")} +
           texts(
               u"MACHINE DATECIRC DATEXAM OPERATEUR DDR MODEXAM CONDITIONS INDI SITUATION LONGUEUR LARG EPAIS "
               u"STRUCTURE CAVITE ENDO EENDO DIU MASSE OVD OVG TD TG DOUGLAS SITUA DIMENSIONS STRUCT NAT ORIGINE "
               u"CONCLU JSTIM DIMOVD NBRFOLD DIMFOLD DIMOVG NBRFOLG DIMFOLG ENDOMETRE DOP1 DOP2");
}

Fields pictureFields() {
    return Fields{with(number(u"Numint"), {&Field::numbered})} + texts(u"NUMECHO Nom Prenom DATEXAM") +
           Fields{with(text(u"NOMFICH"), {&Field::required, &Field::refusesEmpty}),
                  with(text(u"NOMPATH"), {&Field::required, &Field::refusesEmpty, &Field::unique})} +
           texts(u"DIAGNO Typexam CRIT1 CRIT2 CRIT3");
}

using Index = std::vector<const char16_t*>;

Table table(const char16_t* name, FileKind file, Fields fields, const char16_t* rowField,
            const std::vector<Index>& indexes) {
    Table made{QString::fromUtf16(name), file, std::move(fields), {}, -1, {}};
    for (std::size_t i = 0; i < made.fields.size(); ++i) {
        made.places.emplace(made.fields[i].name, static_cast<int>(i));
    }
    made.rowField = rowField == nullptr ? -1 : made.place(rowField);
    for (const Index& index : indexes) {
        made.indexes.emplace_back();
        for (const char16_t* field : index) {
            made.indexes.back().push_back(made.place(field));
        }
    }
    return made;
}

const std::vector<Table>& tables() {
    static const std::vector<Table> all{
        table(u"FICHEPATIENT", FileKind::Nom, patientFields(), u"Numint", {{u"Nom", u"Prenom"}}),
        table(u"1TER", FileKind::Echo, obstetricFields(), nullptr, {{u"Numero", u"NUMECHO"}}),
        table(u"GYNECO", FileKind::Echo, gynaecologyFields(), nullptr, {{u"Numero", u"NUMECHO"}}),
        table(u"OPTIONS", FileKind::Echo,
              {number(u"NUMEROS"), text(u"Texte"), text(u"TERMINAIS"), with(number(u"INDEX"), {&Field::numbered})},
              u"INDEX", {{u"NUMEROS"}}),
        table(u"CIVILITES", FileKind::Echo, civilityFields(), u"Numint", {{u"Nom", u"Prenom"}}),
        table(u"FICHEATCD", FileKind::Atcd, {number(u"Numint"), text(u"Type"), text(u"Texte")}, nullptr, {{u"Numint"}}),
        table(u"ECHOS", FileKind::Echotek, pictureFields(), u"Numint", {}),
        table(u"CLEFS", FileKind::Echotek, {number(u"NUMCRIT"), text(u"CRIT")}, nullptr, {{u"NUMCRIT"}}),
    };
    return all;
}

QByteArray quoted(QStringView name) {
    return '"' + name.toUtf8() + '"';
}

QByteArray typeOf(const Field& field) {
    switch (field.kind) {
        case FieldKind::Number:
            return QByteArrayLiteral(" INTEGER");
        case FieldKind::Date:
            return QByteArrayLiteral(" TEXT");
        case FieldKind::Text:
            break;
    }
    return QByteArrayLiteral(" TEXT COLLATE FR");
}

// A check bears the name of its field, so that a refusal can tell it.
QByteArray check(const QByteArray& column, const QByteArray& condition) {
    return " CONSTRAINT " + column + " CHECK(" + condition + ')';
}

QByteArray checksOf(const Field& field, const QByteArray& column) {
    QByteArray sql;
    if (field.required) {
        sql += " NOT NULL";
    }
    if (field.unique) {
        sql += " UNIQUE";
    }
    if (field.refusesEmpty) {
        sql += check(column, "length(" + column + ")>0");
    }
    if (field.sixteenBits) {
        sql += check(column, column + " BETWEEN -32768 AND 32767");
    }
    if (field.kind == FieldKind::Date) {
        sql += check(column, column + " IS date(" + column + ')');
    }
    return sql;
}

// A row number is never given twice: another station must not take a new record for the one it still shows. Only the
// dossier number comes back, since its highest one is reckoned anew.
QByteArray rowNumber(const Table& table) {
    const bool reckoned = table.rowField >= 0 && table.fields[static_cast<std::size_t>(table.rowField)].sixteenBits;
    return reckoned ? QByteArrayLiteral(" PRIMARY KEY") : QByteArrayLiteral(" PRIMARY KEY AUTOINCREMENT");
}

QByteArray createTable(const Table& table) {
    QByteArrayList columns;
    if (table.rowField < 0) {
        columns << table.rowColumn() + " INTEGER" + rowNumber(table);
    }
    for (int i = 0; i < static_cast<int>(table.fields.size()); ++i) {
        const Field& field = table.fields[static_cast<std::size_t>(i)];
        const QByteArray column = table.column(i);
        columns << column + typeOf(field) + (i == table.rowField ? rowNumber(table) : QByteArray()) +
                       checksOf(field, column);
    }
    return "CREATE TABLE " + quoted(table.name) + '(' + columns.join(',') + ") STRICT";
}

QByteArray createIndex(const Table& table, const std::vector<int>& index) {
    QByteArrayList columns;
    QByteArray name = table.name.toUtf8();
    for (const int place : index) {
        columns << table.column(place);
        name += '_' + table.fields[static_cast<std::size_t>(place)].name.toUtf8();
    }
    return "CREATE INDEX \"" + name + "\" ON " + quoted(table.name) + '(' + columns.join(',') + ')';
}

}  // namespace

int Table::place(QStringView field) const {
    const auto found = places.find(field);
    return found == places.end() ? -1 : found->second;
}

QByteArray Table::column(int place) const {
    return quoted(fields[static_cast<std::size_t>(place)].name);
}

QByteArray Table::rowColumn() const {
    return rowField < 0 ? quoted(kHiddenRowNumber) : column(rowField);
}

std::span<const Table> allTables() {
    return tables();
}

const Table* findTable(QStringView name) {
    const auto found =
        std::ranges::find_if(tables(), [name](const Table& table) { return sameName(table.name, name); });
    return found == tables().end() ? nullptr : &*found;
}

std::vector<QByteArray> creationOf(FileKind kind) {
    std::vector<QByteArray> statements{QByteArray("CREATE TABLE ") + kMetaTable +
                                       "(KIND TEXT NOT NULL, COLLATION INTEGER NOT NULL) STRICT"};
    for (const Table& table : tables()) {
        if (table.file == kind) {
            statements.push_back(createTable(table));
            for (const std::vector<int>& index : table.indexes) {
                statements.push_back(createIndex(table, index));
            }
        }
    }
    return statements;
}

}  // namespace store
