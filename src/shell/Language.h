// The language of the program's texts. English is in the sources, the others are resources that the
// build makes of translations/norvane_xx.ts.
#pragma once

#include <QTranslator>

// Puts the texts of one language in place for as long as it lives. It has to be there before the
// first window, since windows do not change their texts afterwards.
class Language
{
public:
    // A code such as "de" or "de_AT"; empty: the first of the system's languages that there is.
    explicit Language(const QString &code);
    ~Language();
    Language(const Language &) = delete;
    Language &operator=(const Language &) = delete;

    static bool isThere(const QString &code); // English always is

private:
    QTranslator m_own;
    QTranslator m_toolkit; // buttons of standard boxes; installed with Qt, or not there
};
