#include "practice/sample_rows.h"

namespace practice {
namespace {

constexpr QStringView kBelvaude = u"99310 BELVAUDE-SUR-ORLE";
constexpr QStringView kVaubriac = u"99320 VAUBRIAC";
constexpr QStringView kSaintFerrand = u"99314 SAINT-FERRAND-DES-BOIS";
constexpr QStringView kPortLauzanne = u"99340 PORT-LAUZANNE";

constexpr QStringView kRural = u"Mutualité agricole de Belvaude";
constexpr QStringView kThirdParty = u"Tiers Payant inconnu";

constexpr QStringView kEsteve = u"Dr Paul ESTÈVE, Belvaude";
constexpr QStringView kMaraval = u"Dr Lucie MARAVAL, Belvaude";
constexpr QStringView kTissot = u"Dr Alain TISSOT-LAMY, Vaubriac";
constexpr QStringView kRobichon = u"Dr Jeanne ROBICHON, Port-Lauzanne";

// A sheet as the entry window saves it when only the surname was entered.
constexpr SheetExtras kOnlyName{.fund = {}, .quality = {}, .rights = {}, .card = {}};

// Number, insurance rank, civility, name, first name, maiden name, birth, sex, street, town, telephone, fax, e-mail,
// profession, category, doctor.
// clang-format off
constexpr Patient kPatients[] = {
    {2, 17, u"Madame", u"AUBRÉE", u"Claire", u"LEMOINE", {12, 4, 1972}, u"F",
     u"14, rue des Tilleuls", kBelvaude, u"05 36 49 10 21", u"05 36 49 21 02", u"claire.aubree@example.org",
     u"Institutrice", u"Profession intermédiaire", kEsteve, {.rights = {}}},
    {3, 52, u"Madame", u"MARTINEAU", u"Anne", u"CASTEL", {3, 9, 1968}, u"F",
     u"7, impasse du Lavoir", kBelvaude, u"05 36 49 10 34", {}, u"anne.martineau@example.org",
     u"Comptable", u"Employée", kMaraval,
     {.secondLine = true, .quality = u"Assurée", .divers1 = u"Fumeuse, 10 cigarettes par jour"}},
    {4, 8, u"Madame", u"BLANCHET-MOREL", u"Sandrine", u"BLANCHET", {28, 2, 1974}, u"F",
     u"31, avenue de la Gare", kVaubriac, u"05 36 49 11 40", u"05 36 49 21 47", {},
     u"Vendeuse", u"Employée", kTissot, {.rights = {}}},
    {5, 33, u"Madame", u"GUÉRIN", u"Sophie", u"PASQUIER", {19, 6, 1970}, u"F",
     u"2, chemin des Vignes", kSaintFerrand, u"05 36 49 12 06", {}, u"sophie.guerin70@example.org",
     u"Infirmière", u"Profession intermédiaire", kEsteve,
     {.rights = {}, .doctor2 = kRobichon, .divers1 = u"Grossesse obtenue par fécondation in vitro"}},
    {6, 41, u"Mademoiselle", u"CARPENTIER", u"Élodie", {}, {5, 11, 1976}, u"F",
     u"18, rue Basse", kBelvaude, u"05 36 49 10 55", u"05 36 49 21 58", {},
     u"Coiffeuse", u"Artisan, commerçante", kMaraval},
    {7, 5, u"Madame", u"LE GALLOU", u"Marie-Laure", u"DESNOYERS", {23, 1, 1971}, u"F",
     u"Ferme du Haut-Pré", kPortLauzanne, u"05 36 49 13 17", u"05 36 49 23 18", u"ml.legallou@example.org",
     u"Agricultrice", u"Agricultrice exploitante", kRobichon, {.secondLine = true, .fund = kRural, .rights = {}}},
    {8, 29, u"Madame", u"COLLET", u"Isabelle", u"MARCHAND", {9, 8, 1966}, u"F",
     u"45, boulevard du Midi", kBelvaude, u"05 36 49 10 62", {}, {},
     u"Secrétaire médicale", u"Employée", kEsteve,
     {.rights = {}, .doctor2 = kTissot, .cover = u"Diabète", .coverEnd = {31, 12, 2003}}},
    {9, 12, u"Madame", u"D'ALMEIDA", u"Inès", u"FERREIRA", {30, 5, 1975}, u"F",
     u"9, place de la Fontaine", kBelvaude, u"05 36 49 10 77", u"05 36 49 21 79", u"ines.dalmeida@example.org",
     u"Traductrice", u"Cadre", kMaraval},
    {10, 64, u"Madame", u"MARTINEAU", u"Béatrice", u"LOISEL", {17, 12, 1973}, u"F",
     u"7, rue du Pressoir", kVaubriac, u"05 36 49 11 83", {}, {},
     u"Aide-soignante", u"Employée", kTissot, {.rights = {}}},
    {11, 22, u"Madame", u"FAURE", u"Nadège", u"GAUTHIER", {8, 3, 1979}, u"F",
     u"16, résidence des Acacias", kBelvaude, u"05 36 49 10 88", u"05 36 49 21 89", {},
     u"Étudiante", u"Sans activité", kEsteve, {.secondLine = true, .rights = {}, .thirdParty = kThirdParty}},
    {12, 70, u"Madame", u"BENSALEM", u"Nadia", u"HADDAD", {14, 7, 1977}, u"F",
     u"3, rue des Remparts", kBelvaude, u"05 36 49 10 91", u"05 36 49 21 92", {},
     {}, u"Sans activité", kMaraval, {.quality = u"Ayant droit"}},
    {13, 9, u"Mademoiselle", u"TESSIER", u"Aurélie", {}, {21, 10, 1978}, u"F",
     u"27, route de Courval", kSaintFerrand, u"05 36 49 12 25", u"05 36 49 22 26", u"aurelie.tessier@example.org",
     u"Graphiste", u"Cadre", kRobichon, {.rights = {}}},
    {14, 36, u"Madame", u"NOËL", u"Emmanuelle", u"BARBIER", {1, 2, 1969}, u"F",
     u"11, rue de l'Écluse", kBelvaude, u"05 36 49 10 96", {}, {},
     u"Professeur de lettres", u"Cadre", kEsteve, {.rights = {}}},
    {15, 47, u"Madame", u"RIVOIRE", u"Delphine", u"MALLET", {26, 9, 1971}, u"F",
     u"5, allée des Peupliers", kPortLauzanne, u"05 36 49 13 30", u"05 36 49 23 31", {},
     u"Caissière", u"Employée", kTissot, {.divers1 = u"Deux césariennes"}},
    {16, 58, u"Madame", u"HÉRAULT", u"Véronique", u"PRIGENT", {11, 11, 1970}, u"F",
     u"40, rue Haute", kBelvaude, u"05 36 49 11 01", {}, u"veronique.herault@example.org",
     u"Pharmacienne", u"Cadre", kMaraval, {.rights = {}, .doctor2 = kRobichon}},
    {17, 15, u"Madame", u"PONS", u"Maryse", u"AUDIBERT", {4, 6, 1967}, u"F",
     u"22, lotissement du Verger", kVaubriac, u"05 36 49 11 96", {}, {},
     u"Cuisinière", u"Ouvrière", kTissot,
     {.secondLine = true, .rights = {}, .cover = u"Hypertension artérielle", .coverEnd = {30, 6, 2004}}},
    {18, 25, u"Madame", u"L'HERMITTE", u"Agnès", u"COURTOIS", {18, 8, 1972}, u"F",
     u"6, quai de l'Orle", kBelvaude, u"05 36 49 11 04", u"05 36 49 21 05", u"agnes.lhermitte@example.org",
     u"Architecte", u"Cadre", kEsteve},
    {19, 39, u"Madame", u"KERAVEL", u"Soizic", u"TANGUY", {7, 1, 1976}, u"F",
     u"13, venelle du Moulin", kPortLauzanne, u"05 36 49 13 42", {}, {},
     u"Fleuriste", u"Artisan, commerçante", kRobichon, {.rights = {}}},
    {20, 81, u"Madame", u"DA COSTA", u"Lucinda", u"PEREIRA", {29, 4, 1974}, u"F",
     u"8, cité des Jardins", kBelvaude, u"05 36 49 11 08", u"05 36 49 21 09", {},
     {}, u"Sans activité", kMaraval,
     {.quality = u"Ayant droit", .rights = {}, .insured = u"2", .thirdParty = kThirdParty}},
    {21, 3, u"Madame", u"VIGNAL", u"Florence", u"REBOUL", {15, 10, 1963}, u"F",
     u"1, montée du Calvaire", kSaintFerrand, u"05 36 49 12 37", {}, u"florence.vignal@example.org",
     u"Directrice d'école", u"Cadre", kEsteve},
    {22, 18, u"Madame", u"JOUBERT", u"Mélanie", u"PICHON", {2, 12, 1980}, u"F",
     u"34, rue des Carrières", kVaubriac, u"05 36 49 12 02", u"05 36 49 22 03", {},
     u"Ouvrière de conditionnement", u"Ouvrière", kTissot, {.rights = {}}},
    {23, 77, u"Madame", u"MARTINEAU", u"Christelle", u"DUVAL", {20, 7, 1975}, u"F",
     u"52, rue des Tilleuls", kBelvaude, u"05 36 49 11 12", {}, {},
     u"Éducatrice", u"Profession intermédiaire", kMaraval, {.rights = {}}},
    {24, 44, u"Madame", u"GUÉRIN", u"Sophie", u"LACOMBE", {6, 5, 1975}, u"F",
     u"19, rue du Stade", kPortLauzanne, u"05 36 49 13 55", u"05 36 49 23 56", u"sophie.guerin75@example.org",
     u"Kinésithérapeute", u"Profession intermédiaire", kRobichon, {.doctor2 = kEsteve}},
    {25, 20, u"Madame", u"ROSSIGNOL", u"Hélène", u"VERDIER", {27, 3, 1958}, u"F",
     u"4, rue Saint-Aubin", kBelvaude, u"05 36 49 11 16", {}, {},
     u"Bibliothécaire", u"Employée", kEsteve, {.rights = {}, .divers2 = u"Anémie suivie"}},
    {26, 11, u"Madame", u"CHARPIN", u"Françoise", u"BOUVET", {13, 12, 1943}, u"F",
     u"10, place du Marché-aux-Grains", kBelvaude, u"05 36 49 11 20", {}, {},
     u"Retraitée", u"Retraitée", kTissot, {.rights = {}}},
    {27, 30, u"Madame", u"ZIMMERMANN", u"Ingrid", u"KLEIN", {24, 2, 1965}, u"F",
     u"15, rue des Artisans", kVaubriac, u"05 36 49 12 14", u"05 36 49 22 15", u"ingrid.zimmermann@example.org",
     u"Ingénieur", u"Cadre", kMaraval, {.regional = u"O"}},
    {28, 53, u"Madame", u"DUBREUIL-VASSEUR", u"Patricia", u"DUBREUIL", {10, 10, 1961}, u"F",
     u"28, avenue de la Gare", kVaubriac, u"05 36 49 12 19", {}, {},
     u"Commerçante", u"Artisan, commerçante", kRobichon, {.rights = {}}},
    {29, 67, u"Madame", u"ÉVRARD", u"Laetitia", u"SIMONET", {16, 9, 1969}, u"F",
     u"33, rue de l'Écluse", kBelvaude, u"05 36 49 11 24", u"05 36 49 21 25", u"laetitia.evrard@example.org",
     u"Juriste", u"Cadre", kEsteve, {.rights = {}, .divers1 = u"Couple suivi pour infertilité depuis 2000"}},
    {30, 28, u"Madame", u"MAÇON", u"Stéphanie", u"JACQUET", {22, 4, 1972}, u"F",
     u"17, chemin de Halage", kSaintFerrand, u"05 36 49 12 48", {}, {},
     u"Employée de banque", u"Employée", kMaraval},
    {31, 6, u"Mademoiselle", u"SAINT-CYR", u"Odile", {}, {31, 8, 1971}, u"F",
     u"23, rue Basse", kBelvaude, u"05 36 49 11 29", {}, {},
     u"Laborantine", u"Profession intermédiaire", kRobichon, {.rights = {}}},
    {32, 0, u"Madame", u"QUÉMÉNEUR", u"Gwenaëlle", u"LE BIHAN", {}, u"F",
     u"12, hameau des Landes", kPortLauzanne, u"05 36 49 13 68", {}, {},
     {}, u"Sans activité", kTissot,
     {.secondLine = true, .quality = {}, .rights = {}, .card = {}, .lost = u"Courrier revenu en 2001"}},
    {33, 0, {}, u"ROUSSEL", u"Dominique", {}, {19, 11, 1966}, {},
     u"5, rue des Remparts", kBelvaude, u"05 36 49 11 33", {}, {},
     {}, u"Employée", kEsteve, {.quality = {}, .card = {}}},
    {34, 42, u"Monsieur", u"PELLETIER", u"Olivier", {}, {7, 7, 1964}, u"M",
     u"20, rue du Pressoir", kVaubriac, u"05 36 49 12 27", {}, {},
     u"Chauffeur routier", u"Ouvrier", kTissot,
     {.quality = u"Assuré", .rights = {}, .divers3 = u"Conjoint de Mme JOUBERT", .insured = u"1"}},
    {35, 90, u"Madame", u"TRAN", u"Thi Mai", u"NGUYEN", {3, 1, 1973}, u"F",
     u"41, boulevard du Midi", kBelvaude, u"05 36 49 11 37", u"05 36 49 21 38", {},
     u"Couturière", u"Artisan, commerçante", kMaraval, {.rights = {}, .twinRank = u"2"}},
    {36, 14, u"Madame", u"LEFÈVRE", u"Geneviève", u"AUGER", {28, 5, 1938}, u"F",
     u"2, résidence des Acacias", kBelvaude, u"05 36 49 11 41", {}, {},
     u"Retraitée", u"Retraitée", kEsteve, {.cover = u"Cancer du sein", .coverEnd = {15, 3, 2005}}},
    {37, 61, u"Madame", u"LEFEBVRE", u"Caroline", u"MONNIER", {12, 8, 1970}, u"F",
     u"9, route de Courval", kSaintFerrand, u"05 36 49 12 52", {}, u"caroline.lefebvre@example.org",
     u"Assistante maternelle", u"Employée", kRobichon, {.rights = {}}},
    {38, 1, u"Madame", u"ABADIE", u"Yvonne", u"CAZENAVE", {31, 12, 1929}, u"F",
     u"3, quai de l'Orle", kBelvaude, u"05 36 49 11 45", {}, {},
     u"Retraitée", u"Retraitée", kTissot, {.rights = {}, .situation = u"Maison de retraite", .lost = u"O"}},
    {39, 35, u"Madame", u"GOURDON", u"Josette", u"PELTIER", {25, 1, 1955}, u"F",
     u"26, rue Haute", kBelvaude, u"05 36 49 11 49", {}, {},
     u"Gardienne d'immeuble", u"Employée", kMaraval, {.divers4 = u"12"}},
    {40, 73, u"Madame", u"ÉTIENNE", u"Solange", u"ROCHE", {9, 9, 1967}, u"F",
     u"30, chemin des Vignes", kSaintFerrand, u"05 36 49 12 60", u"05 36 49 22 61", u"solange.etienne@example.org",
     u"Musicienne", u"Profession libérale", kEsteve, {.rights = {}, .card = u"N"}},
    {.number = 41, .name = u"SABATIER", .sex = u"F", .more = kOnlyName},
};
// clang-format on

}  // namespace

std::span<const Patient> samplePatients() {
    return kPatients;
}

}  // namespace practice
