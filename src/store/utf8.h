#pragma once

#include <string>
#include <string_view>

namespace store {

/// Reads the characters of a UTF-8 text one by one. A byte that fits no character reads as one beyond all of them.
class Utf8Reader {
public:
    explicit Utf8Reader(std::string_view text) : at_(text.data()), end_(text.data() + text.size()) {}

    bool atEnd() const { return at_ == end_; }

    char32_t next() {
        const auto lead = static_cast<unsigned char>(*at_++);
        return lead < 0x80 ? lead : rest(lead);
    }

private:
    static constexpr char32_t kBadByte = 0x110000;

    char32_t rest(unsigned char lead) {
        const int count = lead >= 0xF0 && lead < 0xF5   ? 3
                          : lead >= 0xE0 && lead < 0xF0 ? 2
                          : lead >= 0xC2 && lead < 0xE0 ? 1
                                                        : 0;
        if (count == 0 || end_ - at_ < count) {
            return kBadByte + lead;
        }
        char32_t code = lead & (0x3F >> count);
        for (int i = 0; i < count; ++i) {
            const auto byte = static_cast<unsigned char>(at_[i]);
            if ((byte & 0xC0) != 0x80) {
                return kBadByte + lead;
            }
            code = code << 6 | (byte & 0x3F);
        }
        at_ += count;
        return code;
    }

    const char* at_;
    const char* end_;
};

/// Appends a character to a UTF-8 text; what `Utf8Reader` made of a bad byte becomes that byte again.
inline void appendUtf8(std::string& text, char32_t code) {
    const auto byte = [&text](char32_t bits) { text += static_cast<char>(bits); };
    if (code < 0x80 || code >= 0x110000) {
        byte(code & 0xFF);
    } else if (code < 0x800) {
        byte(0xC0 | code >> 6);
        byte(0x80 | (code & 0x3F));
    } else if (code < 0x10000) {
        byte(0xE0 | code >> 12);
        byte(0x80 | (code >> 6 & 0x3F));
        byte(0x80 | (code & 0x3F));
    } else {
        byte(0xF0 | code >> 18);
        byte(0x80 | (code >> 12 & 0x3F));
        byte(0x80 | (code >> 6 & 0x3F));
        byte(0x80 | (code & 0x3F));
    }
}

}  // namespace store
