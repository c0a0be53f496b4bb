// Helpers that every layer shares: dates, texts, numbers, files, and the one path by which a
// failure reaches the user. Nothing here touches a control; those helpers are in common/ui.
//
// The sections follow the source files. State: the document counter and the pending error.
#pragma once

#include "common/base/Numbers.h"
#include "common/base/Prompts.h"

#include <QDate>
#include <QString>
#include <QStringList>
#include <QTime>
#include <QVariant>

#include <functional>
#include <memory>

// An unexpected failure that was not shown yet. Number 0: none.
struct PendingError {
    int number = 0;
    QString source;
    QString description;
    int helpContext = 0;
};

// A progress window; empty when there is none.
using WaitDlg = std::unique_ptr<prompts::Progress>;

class clsSystem
{
public:
    enum class Side { Front = 1, Behind = 2 };

    // ---- dates and times (clsSystemDates.cpp). Stored dates are "YYYYMMDD", times "hh:mm:ss".
    // Formats for showing a date, by name.
    static QString FmtLongDate();    // "Long Date"
    static QString FmtShortDate();   // "Short Date"
    static QString FmtNeutralDate(); // "MMM-DD-YY"
    static QString LongDate();
    static QString ShortDate();
    static QString NeutralShortDate();
    static QString CurrDateShort() { return ShortDate(); }
    static QString CurrDateLong() { return LongDate(); }
    static QString CurrTimeAMPM();                                // "3:05:09 PM"
    static QString CurrDateTimeShort();                           // short date, " @ ", "3:05:09 PM"
    static QString CurrDateTimeLong();                            // long date, " @ ", "3:05 PM"
    static QString FormatDate(QDate date, const QString &format); // empty for an invalid date
    static QString FormatTime(QTime time, bool seconds);          // "3:05:09 PM" or "3:05 PM"
    // The century comes from the last two digits of the year alone: 00 to 29 are the 2000s. Empty
    // when the text is blank or has no month, day and year in it.
    static QString DBDateToDislayDate(const QString &date, const QString &format = FmtShortDate());
    static QString DBTimeToDislayTime(const QString &time); // empty when it is no time
    // A date as typed or stored: the locale's forms, with two or four digits in the year, month
    // names, ISO, or eight digits. Empty when it is no date.
    static QString CBDateFormat(const QString &text);
    static QString CBTimeFormat(const QString &text); // empty when it is no time
    static bool IsDate(const QString &text);
    static QDate Str2Date(const QString &text); // SentinelDate when it is no date
    static QDate SentinelDate();                // 1 January 1800, before every real date
    static int GetNumDaysInMonth(int month, int year);
    static bool IsLeapYear(int year);
    static QString PrePad2Zeros(const QString &text);
    // Range codes 1 this month, 2 this year, 11 last month, 12 last year, as short dates. Other
    // codes leave both at the current date and time; false for one outside 1 to 12.
    static bool MakeDateRange(int range, QString &start, QString &end);

    // ---- texts (clsSystemText.cpp)
    static QString Trim(const QString &text); // blanks only, not tabs or line ends
    static QString QuoteStr(const QString &text, bool single = false);
    static QString DoubleQuote();
    static QString CRLF(int count = 1);
    static QString CR(int count = 1);
    static QString LF(int count = 1);
    static QString RemoveChar(const QString &text, QChar character);
    // An empty `character` takes whatever the last one is.
    static QString RemoveLastChar(const QString &text, const QString &character);
    static QString RemoveSurroundingQuote(const QString &text);
    static QString RemoveCRLF(const QString &text); // two blanks for each CR and each LF
    static QString StrGetTextTilChar(const QString &text, const QString &stop);
    static QString StrTrimNull(const QString &text);
    // Exactly `width` characters: a longer text is cut behind.
    static QString PadChar(const QString &text, int width, const QString &pad, Side side);
    static QString PadZeros(const QString &text, int width, Side side = Side::Front);
    static QString PadSpaces(const QString &text, int width, Side side = Side::Behind);
    // Exactly `width` - 1 characters; a text that does not fit ends in ".. ".
    static QString PadOrTruncate(const QString &text, int width);
    static QString StrTruncate(const QString &text, int length);
    // `measure` gives the width of a text in the unit of `width`. The result is narrower.
    static QString TrimTextToFit(const std::function<int(const QString &)> &measure,
                                 const QString &text, int width);
    // Replaces a character outside double quotes, or everywhere when quotes are ignored.
    static QString StrReplaceChar(const QString &text, QChar find, QChar replacement,
                                  bool ignoreQuotes);
    // The trimmed pieces between delimiters; one empty piece for an empty text. The list counts
    // from 0, there is no unused first place.
    static QStringList StrParse2Array(const QString &text, const QString &delimiter,
                                      bool upperCase = false);
    // Case-sensitive; the position counts from 0 and is set on a hit only.
    static bool StrExistsInArray(const QString &text, const QStringList &array, int &position);
    static int CharCountInStr(const QString &text, QChar character);
    static bool StrDigitsOnly(const QString &text);
    static bool StrAlphaOnly(const QString &text);
    static bool StrAlphaDigitOnly(const QString &text);
    static bool EmailAddressIsValid(const QString &address);                // true without any "@"
    static QString MakeFullName(const QString &first, const QString &last); // "Last, First"
    static QString MakeFullNameNoComma(const QString &first, const QString &last);
    // Two hexadecimal digits for each 8-bit character, and back; a pair that is not hexadecimal
    // is passed over.
    static QString StringToHexStr(const QString &text);
    static QString HexStrToString(const QString &hex);

    // ---- numbers and flags (clsSystemNumbers.cpp)
    static QString NumCleanStr(const QString &text); // without currency and thousands signs
    static QString CommafyNoDec(const QVariant &value);
    static QString FormatLongWithCommas(qint32 value);
    static QString FormatTwoDecimals(double value); // "1,234.50"; halves away from zero
    static QString ZeroToNullStr(const QString &text);
    static qint32 Minus1ToZero(qint32 value);
    static int NotBelowZeroInt(int value);
    static qint32 NotBelowZeroLong(qint32 value);
    static qint32 NotBelowMinVal(qint32 value, qint32 bound);
    static qint32 NotAboveMaxVal(qint32 value, qint32 bound);
    static void IncL(qint32 &value); // overflow is a Failure
    // Rounded; 0 when not numeric; a Failure when outside 16 bits.
    static qint16 Str2Int(const QString &text);
    static bool Str2Bool(const QString &text); // exactly "True"
    static QString Bool2TorF(bool value);
    static bool DBTF2TrueFalse(const QString &text);
    static int TrueFalse2ZeroOne(bool value);
    // -1, 0 or 1. Not numeric counts as 0, no date as the sentinel date.
    static int CompareInt(const QString &a, const QString &b);
    static int CompareDate(const QString &a, const QString &b);
    static int CompareStrNoCase(const QString &a, const QString &b);
    qint32 NextDocNum();

    // ---- files and folders (clsSystemFiles.cpp). "/" and "\" are both understood in a path.
    static bool DirExists(const QString &path);
    static bool CreateDir(const QString &path); // one level
    static bool DirDelete(const QString &path); // the whole tree
    static bool FileExists(const QString &path);
    static bool FileReadOnly(const QString &path); // read-only and nothing else
    static bool DeleteFile(const QString &path);   // true: it is gone; a path with "*" is refused
    static bool FileCopyFn(const QString &source, const QString &target); // replaces the target
    static bool FileCopyFn_NonExist(const QString &source, const QString &target);
    static bool FileRename(const QString &from, const QString &to);
    static QString MakePath(const QString &folder, const QString &name);
    static QString FileNameOnly(const QString &path);
    // The path in this system's writing.
    static QString LocalPath(const QString &path);
    // Code page 1252, as it stands. A file that cannot be replaced is told when asked to.
    static bool WriteToFile(const QString &text, const QString &path, bool showError);
    bool FileRead(QString &text, const QString &path); // a missing file is reported

    // ---- the machine (clsSystemHost.cpp)
    static QString GetLocalComputerName();
    static bool ShowFolder(const QString &path);
    static bool LaunchFile(const QString &item, const QStringList &parameters = {});
    static bool GotoWebsite(const QString &address);
    static bool GotoDVWebsite();
    static bool SendEmail(const QString &address); // an empty message to this address
    static void WaitStart(); // the hourglass; not counted, one WaitEnd ends any number
    static void WaitEnd();

    // ---- the person (clsSystemReports.cpp)
    // The pending error, if any, in a critical box; then there is none.
    void ShowError(const QString &context);
    void SetError(int number, const QString &source, const QString &description,
                  int helpContext = 0);
    void ClearError() { m_error = {}; }
    const PendingError &Error() const { return m_error; }
    static void ShowMsg(const QString &text, prompts::Kind kind = prompts::Kind::Information,
                        int helpContext = 0);
    static void EmailMsg(const QString &text); // says its own name and no more
    // Trimmed; empty on Cancel. Asks again for text that is not a number when it must be one.
    static QString PromptInputString(const QString &prompt, const QString &title,
                                     const QString &preset = {}, bool numericOnly = false);
    // False when cancelled, the path is then untouched.
    static bool GetFilename(QString &path, const QString &title, const QString &filter,
                            const QString &initialName, const QString &defaultExtension, bool open);
    static bool GetFilenameOpen(QString &path, const QString &title, const QString &filter,
                                const QString &initialName = {},
                                const QString &defaultExtension = {});
    static bool GetFilenameSaveAs(QString &path, const QString &title, const QString &filter,
                                  const QString &initialName = {},
                                  const QString &defaultExtension = {});
    static QString GetSaveFileName(const QString &title, const QString &filter,
                                   const QString &initialName = {},
                                   const QString &defaultExtension = {});
    static void WaitDlgShow(WaitDlg &form, const QString &title, const QString &message, bool bar,
                            bool cancel);
    static void WaitDlgUpdate(const WaitDlg &form, int percent); // outside 0 to 100: ignored
    static void WaitDlgRemove(WaitDlg &form);

private:
    qint32 m_docNum = 0;
    PendingError m_error;
};

extern clsSystem gSys;
