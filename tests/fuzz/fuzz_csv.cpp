// An import file: headings and rows checked as for customers and as for a lookup list, and every
// row cut the way the import does it.
#include "common/base/Prompts.h"
#include "db/import/clsImportData.h"
#include "db/import/CsvReader.h"
#include "db/import/CsvText.h"
#include "Exercise.h"

#include <sys/mman.h>
#include <unistd.h>

using norvane::fuzz::kMostBytes;
using norvane::fuzz::require;

namespace
{

class SilentProgress : public prompts::Progress
{
public:
    void setPercent(int /*percent*/) override {}
    void setMessage(const QString & /*message*/) override {}
    bool cancelled() const override { return false; }
};

void silencePrompts()
{
    prompts::Backend &backend = prompts::backend();
    backend.message = [](const prompts::Message &) -> prompts::Answer {
        require(false, "a check failed with a message box");
        return prompts::Answer::Ok;
    };
    backend.progress = [](const QString &, const QString &, bool, bool) {
        return std::make_unique<SilentProgress>();
    };
}

// A file of this process alone that has a path.
class TextFile
{
public:
    TextFile() : m_handle(::memfd_create("import.csv", 0)) {}
    ~TextFile() { ::close(m_handle); }
    TextFile(const TextFile &) = delete;
    TextFile &operator=(const TextFile &) = delete;

    bool write(const std::uint8_t *data, std::size_t size) const
    {
        return ::ftruncate(m_handle, 0) == 0 &&
               ::pwrite(m_handle, data, size, 0) == static_cast<ssize_t>(size);
    }
    QString path() const { return QStringLiteral("/proc/self/fd/%1").arg(m_handle); }

private:
    int m_handle;
};

void check(const QString &path, const clsImportColDefs &columns)
{
    clsImportData import;
    QStringList headings;
    QString errors;
    qint32 rows = -1;
    const bool known = import.ValidateCols(path, columns, headings, errors);
    require(known == errors.isEmpty(), "headings are refused without a reason");
    errors.clear();
    const bool good = import.ValidateRows(path, columns, headings, errors, rows);
    require(good == errors.isEmpty() && rows >= 0, "rows are refused without a reason");
}

void cut(const QString &path)
{
    CsvReader reader(path);
    require(reader.open(), "the file cannot be opened");
    while (const auto line = reader.readLine()) {
        for (const QString &raw : SplitCsvRow(*line))
            require(CSVField_GetValue(raw).size() <= raw.size(), "a value grew");
        for (const QString &value : SplitCsvRowForStoring(*line))
            require(!value.contains(u'"'), "a quotation mark is left");
    }
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int * /*argc*/, char *** /*argv*/)
{
    silencePrompts();
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    static const TextFile file;
    if (size > kMostBytes || !file.write(data, size))
        return -1;
    check(file.path(), customerImportColumns());
    check(file.path(), lookupImportColumns());
    cut(file.path());
    return 0;
}
