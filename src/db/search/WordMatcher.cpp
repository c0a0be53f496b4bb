#include "db/search/WordMatcher.h"

#include "common/base/Ansi.h"
#include "common/base/clsSystem.h"

#include <algorithm>

namespace
{

// So many words are looked for one after the other; more of them by their first two bytes.
constexpr std::size_t FewWords = 6;
constexpr std::size_t Pairs = 256 * 256;

std::size_t pairAt(std::string_view text, std::size_t at)
{
    const auto byte = [text](std::size_t i) {
        return i < text.size() ? static_cast<unsigned char>(text[i]) : 0U;
    };
    return byte(at) << 8 | byte(at + 1);
}

} // namespace

WordMatcher::WordMatcher(const QString &text, qint32 type) : m_type(type)
{
    takeWords(text);
    const bool empty = clsSystem::Trim(text).isEmpty();
    if (empty || (type != AnyOfTheWords && type != AllOfTheWords))
        m_verdict = Verdict::All;
    else if (type == AnyOfTheWords)
        m_verdict = m_hasEmpty ? Verdict::All : m_words.empty() ? Verdict::None : Verdict::ByWords;
    else
        m_verdict = m_hasForeign ? Verdict::None : Verdict::ByWords;
    if (m_verdict != Verdict::ByWords)
        return;
    if (m_words.size() > FewWords) {
        indexWords();
    } else {
        for (const std::string &word : m_words)
            m_few.emplace_back(word);
    }
}

void WordMatcher::takeWords(const QString &text)
{
    const QStringList words = clsSystem::StrParse2Array(clsSystem::Trim(text), QStringLiteral(" "));
    for (const QString &word : words) {
        const QByteArray stored = toAnsi(word);
        // "?" stands for what cannot be stored; it must not find question marks.
        if (fromAnsi(stored) != word.normalized(QString::NormalizationForm_C)) {
            m_hasForeign = true;
        } else if (stored.isEmpty()) {
            m_hasEmpty = true;
        } else {
            std::string folded(static_cast<std::size_t>(stored.size()), '\0');
            foldAnsi({stored.constData(), folded.size()}, folded.data());
            m_longest = std::max(m_longest, folded.size());
            m_words.push_back(std::move(folded));
        }
    }
    std::sort(m_words.begin(), m_words.end()); // and so by their pairs
    m_words.erase(std::unique(m_words.begin(), m_words.end()), m_words.end());
}

// A word of one byte is looked for under each pair that begins with it, so it stands under (byte,
// 0), and walkWords asks there too.
void WordMatcher::indexWords()
{
    m_first.assign(Pairs + 1, 0);
    for (const std::string &word : m_words)
        ++m_first[pairAt(word, 0) + 1];
    for (std::size_t pair = 0; pair < Pairs; ++pair)
        m_first[pair + 1] += m_first[pair];
    m_seen.assign(m_words.size(), 0);
}

bool WordMatcher::matches(std::string_view stored) const
{
    if (m_verdict != Verdict::ByWords)
        return m_verdict == Verdict::All;
    if (m_type == AllOfTheWords && stored.size() < m_longest)
        return false;
    if (m_first.empty()) {
        const auto isThere = [stored](const FoldedWord &word) { return word.isIn(stored); };
        return m_type == AnyOfTheWords ? std::any_of(m_few.begin(), m_few.end(), isThere)
                                       : std::all_of(m_few.begin(), m_few.end(), isThere);
    }
    m_folded.resize(stored.size());
    foldAnsi(stored, m_folded.data());
    return m_type == AnyOfTheWords ? hasOne() : hasEach();
}

// Calls `found` with the number of each word at each place of the text, until it gives true.
template <class Found>
bool WordMatcher::walkWords(Found found) const
{
    const std::string_view text = m_folded;
    for (std::size_t at = 0; at < text.size(); ++at) {
        const std::string_view rest = text.substr(at);
        const std::size_t alone = pairAt(rest.substr(0, 1), 0);
        const std::size_t pair = pairAt(rest, 0);
        for (const std::size_t group : {alone, pair}) {
            for (std::size_t word = m_first[group]; word < m_first[group + 1]; ++word) {
                if (rest.starts_with(m_words[word]) && found(word))
                    return true;
            }
            if (alone == pair)
                break;
        }
    }
    return false;
}

bool WordMatcher::hasOne() const
{
    return walkWords([](std::size_t) { return true; });
}

bool WordMatcher::hasEach() const
{
    std::size_t missing = m_words.size();
    if (++m_text == 0) { // the count of texts began anew
        std::fill(m_seen.begin(), m_seen.end(), 0);
        m_text = 1;
    }
    return walkWords([this, &missing](std::size_t word) {
        if (m_seen[word] == m_text)
            return false;
        m_seen[word] = m_text;
        return --missing == 0;
    });
}

QString searchTextShown(const QString &text)
{
    QString shown = clsSystem::Trim(text).normalized(QString::NormalizationForm_C);
    for (QChar &c : shown) {
        const QByteArray stored = toAnsi(c);
        if (fromAnsi(stored) != QString(c))
            continue; // cannot be stored, so it has no upper case there
        char upper = 0;
        foldAnsi({stored.constData(), 1}, &upper);
        c = fromAnsi(QByteArrayView(&upper, 1)).front();
    }
    return shown;
}
