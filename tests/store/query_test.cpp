#include "store/query.h"

#include "store/files.h"

using base::ErrorNumber;
using store::Condition;
using store::Query;

namespace {

const store::Table& patients() {
    return *store::findTable(u"FICHEPATIENT");
}

Condition criterion(const QString& text) {
    return store::readCriterion(text, patients(), 1);
}

void expectRefused(const QString& text) {
    SCOPED_TRACE(text.toStdString());
    expectError(ErrorNumber::QuerySyntax, [&] { store::readQuery(text); });
}

}  // namespace

TEST(QueryText, IsReadWithoutBlanksAndWithMany) {
    for (const auto& text :
         {u"SELECT*FROM 1TER WHERE NUMERO=5And NUMECHO=12ORDER BY NUMECHO"_qs,
          u" select  *\tFROM [1TER]\r\n WHERE NUMERO = 5 AND numecho=12 order  by NumEcho asc "_qs}) {
        const Query query = store::readQuery(text);
        EXPECT_EQ(query.table->name, u"1TER"_qs);
        EXPECT_EQ(query.condition.sql.toStdString(), R"(("Numero"=?1 AND "NUMECHO"=?2))");
        EXPECT_EQ(query.condition.literals, (store::Bounds{qint64{5}, qint64{12}}));
        EXPECT_TRUE(query.condition.plain);
        ASSERT_EQ(query.order.size(), 1U);
        EXPECT_EQ(query.order[0].place, 1);
        EXPECT_FALSE(query.order[0].descending);
    }
}

TEST(QueryText, BindsEveryLiteralInItsFieldsKind) {
    EXPECT_EQ(criterion(u"NUMINT='12'"_qs).literals, store::Bounds{qint64{12}});
    EXPECT_EQ(criterion(u"NUMINT=-12.5"_qs).literals, store::Bounds{-12.5});
    EXPECT_EQ(criterion(u"NUMINT=99999999999999999999"_qs).literals, store::Bounds{1e20});
    EXPECT_EQ(criterion(u"NOM=12"_qs).literals, store::Bounds{QByteArrayLiteral("12")});
    EXPECT_EQ(criterion(u"DATENAISS>='01/03/1970'"_qs).literals, store::Bounds{QByteArrayLiteral("1970-03-01")});
    expectError(ErrorNumber::TypeMismatch, [] { criterion(u"NUMINT='douze'"_qs); });
    expectError(ErrorNumber::TypeMismatch, [] { criterion(u"NUMINT=''"_qs); });
    expectError(ErrorNumber::TypeMismatch, [] { criterion(u"DATENAISS=1970"_qs); });
    expectError(ErrorNumber::TypeMismatch, [] { criterion(u"DATENAISS='hier'"_qs); });
}

TEST(QueryText, TakesDoubledQuotesForOne) {
    EXPECT_EQ(criterion(u"NOM='D''ARC'"_qs).literals, store::Bounds{QByteArrayLiteral("D'ARC")});
    EXPECT_EQ(criterion(u"NOM=\"D'ARC \"\"X\"\"\""_qs).literals, store::Bounds{QByteArrayLiteral("D'ARC \"X\"")});
    EXPECT_EQ(criterion(u"NOM=''"_qs).literals, store::Bounds{QByteArray()});
    EXPECT_EQ(criterion(u"NOM=''''"_qs).literals, store::Bounds{QByteArrayLiteral("'")});
}

TEST(QueryText, KnowsWhatAnIndexCanServe) {
    EXPECT_TRUE(criterion(u"NOM='A' AND (PRENOM>='B' AND NUMINT IS NOT NULL)"_qs).plain);
    EXPECT_FALSE(criterion(u"NOM='A' OR NOM='B'"_qs).plain);
    EXPECT_FALSE(criterion(u"NOM LIKE 'A'"_qs).plain);
    EXPECT_FALSE(criterion(u"NOT NOM='A'"_qs).plain);
    EXPECT_EQ(criterion(u"NOM='A' AND VILLE<>'B' AND NUMINT=3"_qs).fixed, (std::vector<int>{1, 0}));
    EXPECT_TRUE(criterion(u"NOM='A' OR NUMINT=3"_qs).fixed.empty());
}

TEST(QueryText, JoinsConditionsInTheUsualOrder) {
    EXPECT_EQ(criterion(u"NOM='A'OR NOT NUMINT=1AND(NOM LIKE'*'OR VILLE IS NULL)"_qs).sql.toStdString(),
              R"(("Nom"=?1 OR NOT "Numint"=?2 AND (RESSEMBLE(?3,"Nom") OR "VILLE" IS NULL)))");
    EXPECT_EQ(criterion(u"NOM NOT LIKE 'a'"_qs).sql.toStdString(), R"((NOT RESSEMBLE(?1,"Nom")))");
}

const QStringList kNoKnownForm{
    u""_qs,
    u" "_qs,
    u"SELECT"_qs,
    u"SELECT*"_qs,
    u"SELECT*FROM"_qs,
    u"SELECT NOM FROM FICHEPATIENT"_qs,
    u"SELECT*FROM FICHEPATIENT;"_qs,
    u"SELECT*FROM FICHEPATIENT; DELETE FROM FICHEPATIENT"_qs,
    u"DELETE FROM FICHEPATIENT"_qs,
    u"DELETE*FROM FICHEPATIENT"_qs,
    u"UPDATE FICHEPATIENT SET NOM='X'"_qs,
    u"INSERT INTO FICHEPATIENT VALUES(1)"_qs,
    u"DROP TABLE FICHEPATIENT"_qs,
    u"PRAGMA user_version=9"_qs,
    u"ATTACH 'x' AS y"_qs,
    u"EXPLAIN SELECT*FROM FICHEPATIENT"_qs,
    u"WITH a AS (SELECT 1) SELECT*FROM a"_qs,
    u"SELECT*FROM FICHEPATIENT UNION SELECT*FROM FICHEPATIENT"_qs,
    u"SELECT*FROM FICHEPATIENT, CIVILITES"_qs,
    u"SELECT*FROM FICHEPATIENT LIMIT 1"_qs,
    u"SELECT*FROM FICHEPATIENT GROUP BY NOM"_qs,
    u"SELECT*FROM FICHEPATIENT -- WHERE"_qs,
    u"SELECT*FROM FICHEPATIENT /* */"_qs,
    u"SELECT*FROM (SELECT*FROM FICHEPATIENT)"_qs,
    u"SELECT DISTINCT * FROM FICHEPATIENT"_qs,
    u"SELECT*FROM \"FICHEPATIENT\""_qs,
    u"SELECT*FROM FICHEPATIENT WHERE"_qs,
    u"SELECT*FROM FICHEPATIENT ORDER"_qs,
    u"SELECT*FROM FICHEPATIENT ORDER BY"_qs,
    u"SELECT*FROM FICHEPATIENT ORDER BY NOM,"_qs,
    u"SELECT*FROM FICHEPATIENT ORDER BY NOM PRENOM"_qs,
    u"SELECT*FROM FICHEPATIENT ORDER BY 1"_qs,
    u"SELECT*FROM FICHEPATIENT WHERE 1=1"_qs,
    u"SELECT*FROM FICHEPATIENT WHERE NOM"_qs,
    u"SELECT*FROM FICHEPATIENT WHERE NOM="_qs,
    u"SELECT*FROM FICHEPATIENT WHERE NOM=NOM"_qs,
    u"SELECT*FROM FICHEPATIENT WHERE NOM=X"_qs,
    u"SELECT*FROM FICHEPATIENT WHERE NOM=='X'"_qs,
    u"SELECT*FROM FICHEPATIENT WHERE NOM!='X'"_qs,
    u"SELECT*FROM FICHEPATIENT WHERE NOM='X"_qs,
    u"SELECT*FROM FICHEPATIENT WHERE NOM=X'"_qs,
    u"SELECT*FROM FICHEPATIENT WHERE NOM='X' AND"_qs,
    u"SELECT*FROM FICHEPATIENT WHERE (NOM='X'"_qs,
    u"SELECT*FROM FICHEPATIENT WHERE NOM='X')"_qs,
    u"SELECT*FROM FICHEPATIENT WHERE NOM='X' NOM='Y'"_qs,
    u"SELECT*FROM FICHEPATIENT WHERE NUMINT=1,5"_qs,
    u"SELECT*FROM FICHEPATIENT WHERE NUMINT=1e5"_qs,
    u"SELECT*FROM FICHEPATIENT WHERE NUMINT=0x10"_qs,
    u"SELECT*FROM FICHEPATIENT WHERE NUMINT=1+1"_qs,
    u"SELECT*FROM FICHEPATIENT WHERE NUMINT=?1"_qs,
    u"SELECT*FROM FICHEPATIENT WHERE NUMINT=:a"_qs,
    u"SELECT*FROM FICHEPATIENT WHERE NOM LIKE NOM"_qs,
    u"SELECT*FROM FICHEPATIENT WHERE NOM LIKE 1"_qs,
    u"SELECT*FROM FICHEPATIENT WHERE NOM IS 'X'"_qs,
    u"SELECT*FROM FICHEPATIENT WHERE NOM = NULL"_qs,
    u"SELECT*FROM FICHEPATIENT WHERE NOM IN ('X')"_qs,
    u"SELECT*FROM FICHEPATIENT WHERE [NOM='X'"_qs,
    u"SELECT*FROM FICHEPATIENT WHERE []='X'"_qs,
    u"SELECT*FROM FICHEPATIENT WHERE 'X'=NOM"_qs,
    u"SELECT*FROM FICHEPATIENT WHERE NOM='X' COLLATE BINARY"_qs,
};

TEST(QueryText, IsRefusedWhenItIsNoSelectOfTheKnownForm) {
    for (const QString& text : kNoKnownForm) {
        expectRefused(text);
    }
}

TEST(QueryText, IsRefusedWhenANameIsUnknown) {
    expectError(ErrorNumber::UnknownTable, [] { store::readQuery(u"SELECT*FROM NOSUCH"_qs); });
    expectError(ErrorNumber::UnknownTable, [] { store::readQuery(u"SELECT*FROM sqlite_master"_qs); });
    expectError(ErrorNumber::UnknownTable, [] { store::readQuery(u"SELECT*FROM VERANOX_META"_qs); });
    expectError(ErrorNumber::UnknownTable, [] { store::readQuery(u"SELECT*FROM FICHEPATIENTWHERE NOM='X'"_qs); });
    expectError(ErrorNumber::UnknownParameter, [] { store::readQuery(u"SELECT*FROM 1TER WHERE NOM='X'"_qs); });
    expectError(ErrorNumber::UnknownParameter, [] { store::readQuery(u"SELECT*FROM 1TER WHERE _id=1"_qs); });
    expectError(ErrorNumber::UnknownParameter, [] { store::readQuery(u"SELECT*FROM 1TER WHERE rowid=1"_qs); });
    expectError(ErrorNumber::UnknownParameter, [] { store::readQuery(u"SELECT*FROM 1TER ORDER BY _id"_qs); });
    expectError(ErrorNumber::UnknownParameter, [] { store::readQuery(u"SELECT*FROM 1TER ORDER BY INDEX"_qs); });
    expectError(ErrorNumber::UnknownParameter, [] { criterion(u"length(NOM)=1"_qs); });
}

TEST(QueryText, IsBrokenByASurnameWithAnApostropheJoinedRaw) {
    const auto query = u"SELECT*FROM FICHEPATIENT WHERE NOM='%1' ORDER BY NOM, PRENOM"_qs;
    expectRefused(query.arg(u"D'ARC"_qs));
    expectRefused(query.arg(u"'"_qs));
    try {
        store::readQuery(query.arg(u"D'ARC"_qs));
        FAIL();
    } catch (const base::RuntimeError& error) {
        EXPECT_EQ(error.text(),
                  u"Erreur de syntaxe dans la requête (SELECT*FROM FICHEPATIENT WHERE NOM='D'ARC' ORDER "
                  u"BY NOM, PRENOM)."_qs);
    }
}

TEST(QueryText, IsRefusedBeyondAnySensibleDepthOrLength) {
    const auto query = [](const QString& condition) { return u"SELECT*FROM 1TER WHERE "_qs + condition; };
    const auto brackets = [](int depth) { return QString(depth, u'(') + u"NUMERO=1"_qs + QString(depth, u')'); };
    EXPECT_NO_THROW(store::readQuery(query(brackets(40))));
    expectRefused(query(brackets(100000)));
    expectRefused(query(QStringList(100000, u"NOT"_qs).join(u' ') + u" NUMERO=1"_qs));
    EXPECT_NO_THROW(store::readQuery(query(QStringList(150, u"NUMERO=1"_qs).join(u" OR "_qs))));
    expectRefused(query(QStringList(100000, u"NUMERO=1"_qs).join(u" AND "_qs)));
}

TEST(Criterion, StandsAlone) {
    expectError(ErrorNumber::QuerySyntax, [] { criterion(u""_qs); });
    expectError(ErrorNumber::QuerySyntax, [] { criterion(u"NOM='A' ORDER BY NOM"_qs); });
    expectError(ErrorNumber::UnknownParameter, [] { criterion(u"WHERE NOM='A'"_qs); });
    expectError(ErrorNumber::QuerySyntax, [] { criterion(u"NOM>='L'ABBE'"_qs); });
    expectError(ErrorNumber::UnknownParameter, [] { criterion(u"NUMECHO=1"_qs); });
}
