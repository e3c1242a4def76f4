// The cursor against a plain model of it in memory, over 100,000 random steps.

#include <sqlite3.h>

#include <QDir>
#include <algorithm>
#include <functional>
#include <optional>
#include <random>

#include "store/collation.h"
#include "store/files.h"

using base::ErrorNumber;
using base::RuntimeError;
using store::Database;
using store::FileKind;
using store::Recordset;
using store::Value;

namespace {

/// A name and its rank in French order. Names of one rank are level: they differ in case alone.
struct Name {
    const char16_t* text;
    int rank;
};

constexpr Name kNames[] = {{u" ", 0},      {u"ABEL", 1},    {u"abel", 1},   {u"D'ALMEIDA", 2}, {u"DALMEIDA", 3},
                           {u"DESIR", 4},  {u"DÉSIR", 5},   {u"désir", 5},  {u"DUPOND", 6},    {u"DUPONT", 7},
                           {u"Dupont", 7}, {u"LE GOFF", 8}, {u"LEGOFF", 9}, {u"OEUVRE", 10},   {u"ŒUVRE", 11}};
constexpr int kNull = -1;

/// A patient as the model keeps her: indexes into kNames, or kNull.
struct Patient {
    int number;
    int name;
    int firstName;
    int town;
};

int rank(int name) {
    return name == kNull ? kNull : kNames[name].rank;
}

Value value(int name) {
    return name == kNull ? Value() : Value(QString::fromUtf16(kNames[name].text));
}

/// A query in use or like one, and the order in which its rows come: the last key is always the number.
struct ModelQuery {
    QString text;
    std::function<bool(const Patient&)> filter;
    std::function<std::vector<int>(const Patient&)> key;
    bool descending;
    bool lazy;
};

std::vector<int> byName(const Patient& p) {
    return {rank(p.name), rank(p.firstName), p.number};
}

std::vector<int> byNumber(const Patient& p) {
    return {p.number};
}

std::vector<int> byTown(const Patient& p) {
    return {rank(p.town), p.number};
}

std::vector<int> byFirstName(const Patient& p) {
    return {rank(p.firstName), p.number};
}

bool anybody(const Patient&) {
    return true;
}

bool named(const Patient& p, int wanted) {
    return rank(p.name) == wanted;
}

const std::vector<ModelQuery>& queries() {
    static const std::vector<ModelQuery> all{
        {u"SELECT*FROM FICHEPATIENT ORDER BY NOM"_qs, anybody, byName, false, true},
        {u"SELECT*FROM FICHEPATIENT ORDER BY NOM, PRENOM"_qs, anybody, byName, false, true},
        {u"SELECT*FROM FICHEPATIENT ORDER BY NOM DESC"_qs, anybody, byName, true, true},
        {u"SELECT*FROM FICHEPATIENT ORDER BY NUMINT"_qs, anybody, byNumber, false, true},
        {u"SELECT*FROM FICHEPATIENT ORDER BY NUMINT DESC"_qs, anybody, byNumber, true, true},
        {u"SELECT*FROM FICHEPATIENT"_qs, anybody, byNumber, false, true},
        {u"SELECT*FROM FICHEPATIENT WHERE NOM='dupont' ORDER BY NOM, PRENOM"_qs,
         [](const Patient& p) { return named(p, 7); }, byFirstName, false, true},
        {u"SELECT*FROM FICHEPATIENT WHERE NOM='DÉSIR' ORDER BY PRENOM DESC"_qs,
         [](const Patient& p) { return named(p, 5); }, byFirstName, true, true},
        {u"SELECT*FROM FICHEPATIENT WHERE NOM>='E' ORDER BY NOM"_qs, [](const Patient& p) { return rank(p.name) >= 8; },
         byName, false, true},
        {u"SELECT*FROM FICHEPATIENT WHERE VILLE IS NULL ORDER BY NOM"_qs,
         [](const Patient& p) { return p.town == kNull; }, byName, false, true},
        {u"SELECT*FROM FICHEPATIENT ORDER BY VILLE"_qs, anybody, byTown, false, false},
        {u"SELECT*FROM FICHEPATIENT ORDER BY VILLE DESC"_qs, anybody, byTown, true, false},
        {u"SELECT*FROM FICHEPATIENT WHERE NOM LIKE '*dup*' ORDER BY NOM"_qs,
         [](const Patient& p) { return named(p, 6) || named(p, 7); }, byName, false, false},
        {u"SELECT*FROM FICHEPATIENT WHERE NOM='ABEL' OR PRENOM='ABEL' ORDER BY NUMINT"_qs,
         [](const Patient& p) { return named(p, 1) || rank(p.firstName) == 1; }, byNumber, false, false},
    };
    return all;
}

struct ModelCriterion {
    QString text;
    std::function<bool(const Patient&)> meets;
};

const std::vector<ModelCriterion>& criteria() {
    static const std::vector<ModelCriterion> all{
        {u"NOM>='DALM'"_qs, [](const Patient& p) { return rank(p.name) >= 2; }},
        {u"NOM>='DUP'"_qs, [](const Patient& p) { return rank(p.name) >= 6; }},
        {u"NOM>='Z'"_qs, [](const Patient&) { return false; }},
        {u"NOM='Désir'"_qs, [](const Patient& p) { return named(p, 5); }},
        {u"NOM='D''Almeida'"_qs, [](const Patient& p) { return named(p, 2); }},
        {u"NOM<'DESIR'"_qs, [](const Patient& p) { return rank(p.name) < 4; }},
        {u"PRENOM>='LE'"_qs, [](const Patient& p) { return rank(p.firstName) >= 8; }},
        {u"PRENOM IS NULL"_qs, [](const Patient& p) { return p.firstName == kNull; }},
        {u"VILLE<>'ABEL'"_qs, [](const Patient& p) { return p.town != kNull && rank(p.town) != 1; }},
        {u"NUMINT=17"_qs, [](const Patient& p) { return p.number == 17; }},
        {u"NUMINT>20"_qs, [](const Patient& p) { return p.number > 20; }},
        {u"NUMINT LIKE '*1*'"_qs, [](const Patient& p) { return QString::number(p.number).contains(u'1'); }},
        {u"VILLE LIKE '*EU*'"_qs, [](const Patient& p) { return rank(p.town) == 10; }},
        {u"NOM='ABEL' OR VILLE='legoff'"_qs, [](const Patient& p) { return named(p, 1) || rank(p.town) == 9; }},
    };
    return all;
}

using Table = std::vector<Patient>;

const Patient* patientOf(const Table& table, int number) {
    const auto found = std::ranges::find(table, number, &Patient::number);
    return found == table.end() ? nullptr : &*found;
}

/// What a recordset is said to be, the plain way: everything is filtered and sorted anew at each step.
class ModelCursor {
public:
    ModelCursor(Table& table, const ModelQuery& query) : table_(table), query_(query) {}

    bool eof() { return settled() == State::AtEnd || state_ == State::Empty; }
    bool bof() { return settled() == State::AtBegin || state_ == State::Empty; }
    bool noMatch() const { return noMatch_; }
    bool isAdding() const { return edited_ && adding_; }

    void moveToEnd(bool last) {
        edited_.reset();
        goToEnd(last);
        if (state_ == State::Empty) {
            throw RuntimeError(ErrorNumber::NoCurrentRecord);
        }
    }

    void move(bool back) {
        settled();
        edited_.reset();
        if (state_ == State::Empty || state_ == (back ? State::AtBegin : State::AtEnd)) {
            throw RuntimeError(ErrorNumber::NoCurrentRecord);
        }
        if (state_ == (back ? State::AtEnd : State::AtBegin)) {
            return goToEnd(back);
        }
        if (const auto next = neighbour(back)) {
            return goTo(*next);
        }
        const bool nobody = std::ranges::none_of(table_, query_.filter);
        state_ = state_ == State::Deleted && nobody ? State::Empty : back ? State::AtBegin : State::AtEnd;
    }

    void find(bool last, const ModelCriterion& criterion) {
        edited_.reset();
        std::vector<Patient> met;
        std::ranges::copy_if(rows(), std::back_inserter(met), criterion.meets);
        noMatch_ = met.empty();
        if (!noMatch_) {
            goTo(last ? met.back() : met.front());
        }
    }

    /// The record that fields are read from; throws what reading its number throws.
    const Patient& record() {
        if (!isAdding()) {
            requireRow();
        }
        return edited_ ? *edited_ : row_;
    }

    void addNew(Patient fresh) {
        settled();
        edited_ = fresh;
        adding_ = true;
    }

    Patient& edit() {
        requireRow();
        const Patient* now = patientOf(table_, row_.number);
        if (now == nullptr) {
            state_ = State::Deleted;
            throw RuntimeError(ErrorNumber::RecordDeleted);
        }
        row_ = *now;
        edited_ = row_;
        adding_ = false;
        written_ = {};
        return *edited_;
    }

    /// Which fields of the edited record were written: name, first name, town.
    void write(int name, int firstName, std::optional<int> town) {
        edited_->name = name;
        edited_->firstName = firstName;
        written_[0] = written_[1] = true;
        if (town) {
            edited_->town = *town;
            written_[2] = true;
        }
    }

    void update() {
        if (adding_) {
            if (patientOf(table_, edited_->number) != nullptr) {
                throw RuntimeError(ErrorNumber::DuplicateKey);
            }
            table_.push_back(*edited_);
            if (std::ranges::find(numbers_, edited_->number) == numbers_.end()) {
                numbers_.push_back(edited_->number);
            }
        } else {
            change();
        }
        edited_.reset();
    }

    void remove() {
        requireRow();
        const bool there = patientOf(table_, row_.number) != nullptr;
        std::erase_if(table_, [this](const Patient& p) { return p.number == row_.number; });
        edited_.reset();
        state_ = State::Deleted;
        if (!there) {
            throw RuntimeError(ErrorNumber::RecordDeleted);
        }
    }

    int count() const { return static_cast<int>(std::ranges::count_if(table_, query_.filter)); }

private:
    enum class State { Fresh, OnRow, Deleted, AtBegin, AtEnd, Empty };

    bool before(const Patient& a, const Patient& b) const {
        return query_.descending ? query_.key(b) < query_.key(a) : query_.key(a) < query_.key(b);
    }

    Table sorted() const {
        Table rows;
        std::ranges::copy_if(table_, std::back_inserter(rows), query_.filter);
        std::ranges::sort(rows, [this](const Patient& a, const Patient& b) { return before(a, b); });
        return rows;
    }

    /// The rows of a query that no index serves stay those of its first use, in their order, deleted ones left out.
    Table rows() {
        if (query_.lazy) {
            return sorted();
        }
        if (!fetched_) {
            fetched_ = true;
            numbers_.clear();
            for (const Patient& patient : sorted()) {
                numbers_.push_back(patient.number);
            }
        }
        Table rows;
        for (const int number : numbers_) {
            if (const Patient* patient = patientOf(table_, number)) {
                rows.push_back(*patient);
            }
        }
        return rows;
    }

    State settled() {
        if (state_ == State::Fresh) {
            goToEnd(false);
        }
        return state_;
    }

    void requireRow() {
        if (settled() == State::Deleted) {
            throw RuntimeError(ErrorNumber::RecordDeleted);
        }
        if (state_ != State::OnRow) {
            throw RuntimeError(ErrorNumber::NoCurrentRecord);
        }
    }

    void goToEnd(bool last) {
        const Table all = rows();
        if (all.empty()) {
            state_ = State::Empty;
        } else {
            goTo(last ? all.back() : all.front());
        }
    }

    void goTo(const Patient& patient) {
        row_ = place_ = patient;
        at_ = std::ranges::find(numbers_, patient.number) - numbers_.begin();
        state_ = State::OnRow;
    }

    std::optional<Patient> neighbour(bool back) { return query_.lazy ? neighbourByKey(back) : neighbourByNumber(back); }

    std::optional<Patient> neighbourByKey(bool back) const {
        std::optional<Patient> found;
        for (const Patient& patient : sorted()) {
            if (back && before(patient, place_)) {
                found = patient;
            } else if (!back && before(place_, patient)) {
                return patient;
            }
        }
        return found;
    }

    std::optional<Patient> neighbourByNumber(bool back) const {
        const int stride = back ? -1 : 1;
        for (auto at = at_ + stride; at >= 0 && at < std::ssize(numbers_); at += stride) {
            if (const Patient* patient = patientOf(table_, numbers_[static_cast<std::size_t>(at)])) {
                return *patient;
            }
        }
        return std::nullopt;
    }

    void change() {
        requireRow();
        const auto stored = std::ranges::find(table_, row_.number, &Patient::number);
        if (stored == table_.end()) {
            state_ = State::Deleted;
            throw RuntimeError(ErrorNumber::RecordDeleted);
        }
        stored->name = written_[0] ? edited_->name : stored->name;
        stored->firstName = written_[1] ? edited_->firstName : stored->firstName;
        stored->town = written_[2] ? edited_->town : stored->town;
        row_ = *stored;
    }

    Table& table_;
    const ModelQuery& query_;
    State state_ = State::Fresh;
    bool noMatch_ = false;
    Patient row_{};
    Patient place_{};
    std::ptrdiff_t at_ = 0;
    std::vector<int> numbers_;
    bool fetched_ = false;
    std::optional<Patient> edited_;
    bool adding_ = false;
    std::array<bool, 3> written_{};
};

/// Another station: a connection of its own, with nothing of the store but the sort order.
class OtherStation {
public:
    explicit OtherStation(const QString& path) {
        sqlite3_open(path.toUtf8().constData(), &database_);
        store::addCollation(database_);
        sqlite3_exec(database_, "PRAGMA synchronous=OFF", nullptr, nullptr, nullptr);
    }
    ~OtherStation() { sqlite3_close(database_); }
    OtherStation(const OtherStation&) = delete;
    OtherStation& operator=(const OtherStation&) = delete;

    void add(const Patient& p) {
        run(u"INSERT INTO FICHEPATIENT(NUMINT,NOM,PRENOM,VILLE) VALUES(%1,%2)"_qs.arg(p.number).arg(texts(p)));
    }
    void change(const Patient& p) {
        run(u"UPDATE FICHEPATIENT SET (NOM,PRENOM,VILLE)=(%2) WHERE NUMINT=%1"_qs.arg(p.number).arg(texts(p)));
    }
    void remove(int number) { run(u"DELETE FROM FICHEPATIENT WHERE NUMINT=%1"_qs.arg(number)); }

private:
    static QString quoted(int name) {
        return name == kNull ? u"NULL"_qs : u"'%1'"_qs.arg(value(name).text().replace(u"'"_qs, u"''"_qs));
    }
    static QString texts(const Patient& p) {
        return QStringList{quoted(p.name), quoted(p.firstName), quoted(p.town)}.join(u',');
    }
    void run(const QString& sql) {
        ASSERT_EQ(sqlite3_exec(database_, sql.toUtf8().constData(), nullptr, nullptr, nullptr), SQLITE_OK)
            << sql.toStdString() << ": " << sqlite3_errmsg(database_);
    }

    sqlite3* database_ = nullptr;
};

/// Takes the store and the model through the same steps.
class Comparison {
public:
    Comparison(const QString& path, unsigned seed) : database_(Database::open(path)), station_(path), random_(seed) {
        reopen();
    }

    void step() {
        const int kind = below(100);
        if (kind < 4) {
            reopen();
        } else if (kind < 44) {
            moveAnywhere();
        } else if (kind < 62) {
            find();
        } else if (kind < 72) {
            both([&] { rows_.addNew(); }, [&] { model_->addNew({0, kNull, kNull, kNull}); });
            write(true);
        } else if (kind < 82) {
            if (both([&] { rows_.edit(); }, [&] { model_->edit(); })) {
                write(false);
            }
        } else if (kind < 87) {
            both([&] { rows_.remove(); }, [&] { model_->remove(); });
        } else {
            changeElsewhere();
        }
        compare();
    }

private:
    int below(int limit) { return static_cast<int>(random_() % static_cast<unsigned>(limit)); }
    int anyName() { return below(std::size(kNames)); }
    int anyNameOrNull() { return below(4) == 0 ? kNull : anyName(); }

    template <class Step>
    static std::optional<ErrorNumber> errorOf(Step&& step) {
        try {
            step();
            return std::nullopt;
        } catch (const RuntimeError& error) {
            return error.number();
        }
    }

    /// Does both; true if they went through.
    template <class Store, class Model>
    bool both(Store&& store, Model&& model) {
        const auto storeError = errorOf(store);
        const auto modelError = errorOf(model);
        EXPECT_EQ(storeError, modelError);
        return !storeError && !modelError;
    }

    void reopen() {
        query_ = &queries()[static_cast<std::size_t>(below(static_cast<int>(queries().size())))];
        rows_ = database_.openRecordset(query_->text);
        model_.emplace(table_, *query_);
    }

    void moveAnywhere() {
        switch (below(6)) {
            case 0:
                both([&] { rows_.moveFirst(); }, [&] { model_->moveToEnd(false); });
                break;
            case 1:
                both([&] { rows_.moveLast(); }, [&] { model_->moveToEnd(true); });
                break;
            case 2:
            case 3:
                both([&] { rows_.movePrevious(); }, [&] { model_->move(true); });
                break;
            default:
                both([&] { rows_.moveNext(); }, [&] { model_->move(false); });
        }
    }

    void find() {
        const ModelCriterion& criterion =
            criteria()[static_cast<std::size_t>(below(static_cast<int>(criteria().size())))];
        if (below(2) == 0) {
            both([&] { rows_.findFirst(criterion.text); }, [&] { model_->find(false, criterion); });
        } else {
            both([&] { rows_.findLast(criterion.text); }, [&] { model_->find(true, criterion); });
        }
    }

    // Writes the record begun and saves it; or leaves it to be dropped by the next step.
    void write(bool adding) {
        const int name = anyName();
        const int firstName = anyNameOrNull();
        const int number = 1 + below(40);
        const std::optional<int> town = below(2) == 0 ? std::nullopt : std::optional(anyNameOrNull());
        rows_.set(u"NOM"_qs, value(name));
        rows_.set(u"prenom"_qs, value(firstName));
        if (town) {
            rows_.set(u"VILLE"_qs, value(*town));
        }
        if (adding) {
            rows_.set(u"Numint"_qs, number);
            model_->addNew({number, kNull, kNull, kNull});
        }
        model_->write(name, firstName, town);
        if (below(4) != 0) {
            both([&] { rows_.update(); }, [&] { model_->update(); });
        }
    }

    void changeElsewhere() {
        const Patient patient{1 + below(40), anyName(), anyNameOrNull(), anyNameOrNull()};
        const auto known = std::ranges::find(table_, patient.number, &Patient::number);
        if (known == table_.end()) {
            station_.add(patient);
            table_.push_back(patient);
        } else if (below(2) == 0) {
            station_.change(patient);
            *known = patient;
        } else {
            station_.remove(patient.number);
            table_.erase(known);
        }
    }

    void compare() {
        // Now and then nothing is asked, so that a fresh cursor meets the next step unread.
        if (below(3) == 0) {
            return;
        }
        EXPECT_EQ(rows_.noMatch(), model_->noMatch());
        EXPECT_EQ(rows_.eof(), model_->eof());
        EXPECT_EQ(rows_.bof(), model_->bof());
        std::optional<Patient> expected;
        const auto error = errorOf([&] { expected = model_->record(); });
        std::optional<ErrorNumber> read = errorOf([&] { rows_.field(u"NUMINT"_qs); });
        EXPECT_EQ(read, error) << query_->text.toStdString();
        if (expected && !read) {
            EXPECT_EQ(rows_.field(u"NUMINT"_qs), Value(expected->number)) << query_->text.toStdString();
            EXPECT_EQ(rows_.field(u"NOM"_qs), value(expected->name));
            EXPECT_EQ(rows_.field(u"PRENOM"_qs), value(expected->firstName));
            EXPECT_EQ(rows_.field(u"VILLE"_qs), value(expected->town));
        }
        if (below(5) == 0) {
            EXPECT_EQ(rows_.recordCount(), model_->count());
        }
    }

    Database database_;
    OtherStation station_;
    std::mt19937 random_;
    Table table_;
    const ModelQuery* query_ = nullptr;
    Recordset rows_;
    std::optional<ModelCursor> model_;
};

/// A folder in memory where there is one: what is tested here is not the disk.
QString fastFolder() {
    return QDir(u"/dev/shm"_qs).exists() ? u"/dev/shm/veranox-XXXXXX"_qs : QDir::tempPath() + u"/veranox-XXXXXX"_qs;
}

}  // namespace

class CursorModel : public testing::TestWithParam<unsigned> {};

TEST_P(CursorModel, AgreesWithTheStoreAtEveryStep) {
    const QTemporaryDir folder(fastFolder());
    const QString path = folder.filePath(u"NOM.MDB"_qs);
    store::createFile(FileKind::Nom, path);
    Comparison comparison(path, GetParam());
    for (int i = 0; i < 20000; ++i) {
        comparison.step();
        ASSERT_FALSE(HasFailure()) << "at step " << i;
    }
}

INSTANTIATE_TEST_SUITE_P(Seeds, CursorModel, testing::Values(1U, 2U, 3U, 4U, 5U));
