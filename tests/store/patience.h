#pragma once

#include "base/errors.h"
#include "store/recordset.h"

/// Saves the record, and again when others kept the file longer than one save waits: several writers without a pause on
/// a busy machine may do that to each other, and the record is then still there to be saved.
inline void saveInTurn(store::Recordset& record) {
    constexpr int kTurns = 6;
    for (int turn = 1;; ++turn) {
        try {
            record.update();
            return;
        } catch (const base::RuntimeError& error) {
            if (error.number() != base::ErrorNumber::RecordLocked || turn == kTurns) {
                throw;
            }
        }
    }
}
