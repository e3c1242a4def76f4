#pragma once

#include <array>

#include "forms/controls.h"
#include "pictures/album_base.h"
#include "ports/boxes.h"

namespace pictures {

/// The words that the album's combo boxes offer, in four lists: the diagnoses (0) and three of key words (1 to 3).
/// A failure while a word is added or removed ends that quietly.
class KeyWords {
public:
    /// The boxes of one list: the one of the search and the one of the picture in hand.
    struct Boxes {
        forms::ComboBox& search;
        forms::ComboBox& entry;
    };
    static constexpr int kLists = 4;

    KeyWords(const AlbumBase& base, ports::Boxes& boxes, const std::array<Boxes, kLists>& lists)
        : base_(base), boxes_(boxes), lists_(lists) {}

    /// Empties all boxes and fills them anew, in the order in which the words were added. Throws as
    /// `AlbumBase::open` does.
    void fill();
    /// Asks whether to keep the word that stands in the box of the picture in hand, and keeps it. The boxes offer it
    /// from the next opening of the window.
    void add(int list);
    /// Asks whether to remove the word that stands in the box of the search, and removes it from the list. Pictures
    /// keep it.
    void remove(int list);

private:
    const Boxes& boxesOf(int list) const { return lists_.at(static_cast<std::size_t>(list)); }
    void fillList(int list);
    void addAsked(int list, const QString& word);
    void removeAsked(int list, const QString& word);
    bool confirm(const QString& doing, const QString& word, int list) const;

    const AlbumBase& base_;
    ports::Boxes& boxes_;
    std::array<Boxes, kLists> lists_;
};

}  // namespace pictures
