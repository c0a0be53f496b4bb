// The order of texts in lists: that of the letters in the user's language, without regard to case.
#pragma once

#include <QStringView>

#include <array>
#include <cstdint>
#include <string>

class TextOrder
{
public:
    // For the default locale. Letters count one by one: where a language sorts two as one ("ch"),
    // they stay two.
    TextOrder();

    // Bytes that compare as the texts do, none of them 0. Accents count only between texts of the
    // same letters.
    void appendKey(QStringView text, std::string &key) const;
    std::string key(QStringView text) const;

private:
    struct Place {
        std::uint8_t letter = 0; // from 2 on; 0: none of its own
        std::uint8_t accent = 0;
        bool ignored = false;
    };
    static constexpr std::size_t Known = 0x2200; // characters below may have a place
    std::array<Place, Known> m_places{};
};
