#pragma once

#include <QDate>
#include <QList>

#include "store/value.h"

namespace dossier {

/// One row of the sheet: a control, its field, what is entered and what the record then holds.
struct SheetRow {
    const char* control;
    const char* field;
    const char* entry;
    store::Value stored;
};

/// The 34 text and combo boxes with an entry each.
inline QList<SheetRow> sheetRows() {
    return {
        {"TxtCivilitee", "CIVILITEE", "Mademoiselle", "Mademoiselle"},
        {"TxtNom", "Nom", "L'HÉRITIER", "L'HÉRITIER"},
        {"TxtPrenom", "Prenom", "Anaïs", "Anaïs"},
        {"TxtNomjf", "NOMJF", "NOËL", "NOËL"},
        {"TxtDatenaiss", "DATENAISS", "29/02/1976", QDate(1976, 2, 29)},
        {"TxtRue1", "RUE1", "8, rue de l'Été", "8, rue de l'Été"},
        {"TxtRue2", "RUE2", "Bâtiment B", "8, rue de l'Été"},
        {"CmbVille", "VILLE", "Valmont", "Valmont"},
        {"CmbCodepost", "CODEPOST", "99100", "99100"},
        {"TxtTelephone", "TELEPHONE", "05 00 00 00 01", "05 00 00 00 01"},
        {"TxtFax", "FAX", "05 00 00 00 02", "05 00 00 00 02"},
        {"TxtEmail", "EMAIL", "anais@example.org", "anais@example.org"},
        {"TxtProfession", "PROFESSION", "Boulangère", "Boulangère"},
        {"TxtCatsocpro", "CATSOCPRO", "Artisan", "Artisan"},
        {"TxtNumsecsoc", "NUMSECSOC", "2 76 02 99", "2 76 02 99"},
        {"TxtAssure", "ASSURE", "0042", "0042"},
        {"CmbQualite", "QUALITE", "Ascendant, descendant", "Ascendant, descendant"},
        {"TxtCaisse", "CAISSE", "Caisse 12", "Caisse 12"},
        {"TxtPriseencharge", "PRISEENCHARGE", "Oui", "Oui"},
        {"TxtDatefinprisencharge", "DATEFINPRISENCHARGE", "31/12/2003", QDate(2003, 12, 31)},
        {"TxtRanggem", "Ranggem", "2", "2"},
        {"TxtCartesante", "CARTESANTE", "Vue", "Vue"},
        {"TxtDCD", "DCD", "C1", "C1"},
        {"TxtPerdudevue", "PERDUDEVUE", "Non", "Non"},
        {"CmbDroits", "DROITS", "01/2002", "01/2002"},
        {"TxtMedtt1", "MEDTT1", "Dr Un", "Dr Un"},
        {"TxtMedtt2", "MEDTT2", "Dr Deux", "Dr Deux"},
        {"TxtMedtt3", "MEDTT3", "Dr Trois", "Dr Trois"},
        {"Txtmedtt4", "MEDTT4", "Dr Quatre", "Dr Quatre"},
        {"TxtDivers1", "DIVERS1", "a", "a"},
        {"TxtDivers2", "DIVERS2", "b", "b"},
        {"TxtDivers3", "DIVERS3", "c", "c"},
        {"TxtDivers4", "DIVERS4", "7", "7"},
        {"CmbTierspayant", "TIERSPAYANT", "Tiers Payant inconnu", "Tiers Payant inconnu"},
    };
}

/// The fields in which an empty entry is one blank.
inline QStringList blankFields() {
    return {"Prenom",     "NOMJF",   "RUE1",       "RUE2",          "VILLE",      "CODEPOST",
            "TELEPHONE",  "FAX",     "PROFESSION", "CATSOCPRO",     "CIVILITEE",  "NUMSECSOC",
            "DIVERS1",    "DIVERS2", "DIVERS3",    "PRISEENCHARGE", "CARTESANTE", "DCD",
            "PERDUDEVUE", "MEDTT1",  "MEDTT2",     "MEDTT3",        "MEDTT4",     "CAISSE",
            "Ranggem",    "QUALITE", "DROITS",     "EMAIL",         "TIERSPAYANT"};
}

/// The fields that what is no number or no date leaves alone.
inline QStringList skippedFields() {
    return {"ASSURE", "DIVERS4", "DATENAISS", "DATEFINPRISENCHARGE"};
}

}  // namespace dossier
