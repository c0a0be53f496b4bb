// "Contains", without regard to case, on field contents as they are stored: whole tables are
// walked with it, so it makes no texts.
#pragma once

#include <QString>

#include <string>
#include <string_view>

class CustomerMatcher
{
public:
    explicit CustomerMatcher(const QString &wanted);

    // The blanks around a field's contents do not belong to it. An empty field contains nothing.
    bool fieldContains(std::string_view stored) const;

private:
    std::string m_wanted; // upper case
    bool m_storable = true;
    mutable std::string m_folded; // of the field at hand, kept for its memory
};
