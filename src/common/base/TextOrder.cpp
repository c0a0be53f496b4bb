#include "common/base/TextOrder.h"

#include "common/base/Ansi.h"

#include <QCollator>

#include <algorithm>
#include <vector>

namespace
{

constexpr char Unplaced = '\xFF';   // behind all letters
constexpr char EndOfLetters = '\1'; // before all letters

// Every character that can be stored, in lower case.
std::vector<QChar> storedCharacters()
{
    std::vector<QChar> all;
    for (int code = 1; code < 256; ++code)
        all.push_back(fromAnsi(QByteArray(1, static_cast<char>(code))).front().toCaseFolded());
    std::sort(all.begin(), all.end());
    all.erase(std::unique(all.begin(), all.end()), all.end());
    return all;
}

} // namespace

// Asked a million times over, the collator itself would take seconds. It is asked about the
// characters instead: a table says in which place each of them comes.
TextOrder::TextOrder()
{
    QCollator collator;
    collator.setCaseSensitivity(Qt::CaseInsensitive);
    std::vector<QChar> all = storedCharacters();
    std::stable_sort(all.begin(), all.end(), [&collator](QChar a, QChar b) {
        return collator.compare(QString(a), QString(b)) < 0;
    });
    Place place{EndOfLetters};
    QChar before;
    for (const QChar c : all) {
        const bool ignored = collator.compare(QString(QString(u'a') + c), QString(u'a')) == 0;
        const bool same = !before.isNull() && collator.compare(QString(before), QString(c)) == 0;
        // Two that differ in their accents only: what follows them weighs more.
        const bool sameLetter =
            same ||
            (!before.isNull() && collator.compare(QString(c) + u'a', QString(before) + u'b') < 0);
        if (!sameLetter && !ignored)
            place = {static_cast<std::uint8_t>(place.letter + 1), 1, false};
        else if (!same && !ignored)
            ++place.accent;
        m_places[c.unicode()] = ignored ? Place{0, 0, true} : place;
        if (!ignored)
            before = c;
    }
    for (std::size_t code = 0; code < Known; ++code) {
        const char16_t folded = QChar(static_cast<char16_t>(code)).toCaseFolded().unicode();
        if (folded != code && folded < Known && m_places[folded].letter > 0)
            m_places[code] = m_places[folded];
    }
}

void TextOrder::appendKey(QStringView text, std::string &key) const
{
    bool accents = false;
    for (const QChar c : text) {
        const char16_t code = c.unicode();
        const Place place = code < Known ? m_places[code] : Place{};
        if (place.ignored)
            continue;
        if (place.letter > 0) {
            key += static_cast<char>(place.letter);
            accents = accents || place.accent > 1;
        } else {
            const char16_t folded = c.toCaseFolded().unicode();
            key += {Unplaced, static_cast<char>(1 + (folded >> 12U)),
                    static_cast<char>(1 + (folded >> 6U & 0x3FU)),
                    static_cast<char>(1 + (folded & 0x3FU))};
        }
    }
    if (!accents)
        return;
    key += EndOfLetters;
    for (const QChar c : text) {
        const char16_t code = c.unicode();
        if (code < Known && m_places[code].letter > 0)
            key += static_cast<char>(m_places[code].accent);
    }
}

std::string TextOrder::key(QStringView text) const
{
    std::string bytes;
    appendKey(text, bytes);
    return bytes;
}
