#pragma once

#include "practice/support.h"

/// The sample practice, made once for the whole run.
class Sample : public testing::Test {
protected:
    static const practice::Paths& files();

    static const QList<Row>& patients();
    /// The patient with this dossier number.
    static Row patient(int number);

    static const QList<Row>& obstetric();
    static const QList<Row>& gynaecology();
    /// One exam by the pair that addresses it; empty if there is none.
    static Row exam(int dossier, int number);
    static Row pelvic(int dossier, int number);
};
