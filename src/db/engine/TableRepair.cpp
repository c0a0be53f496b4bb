#include "db/engine/TableRepair.h"

#include "db/engine/TableCheck.h"

#include <algorithm>

namespace norvane::engine
{

namespace
{

using Place = CheckFinding::Place;

class TableRepair
{
public:
    TableRepair(TableFiles &files, std::vector<RepairLine> &report)
        : m_files(files), m_report(report)
    {
    }

    Status run()
    {
        m_report.insert(m_report.end(), m_files.mended().begin(), m_files.mended().end());
        std::vector<Place> failed;
        // the index last: it is built from what the others leave
        for (const Place place : {Place::Header, Place::Memo, Place::Index}) {
            const std::vector<CheckFinding> findings = checkTable(m_files, {});
            const auto first =
                std::find_if(findings.begin(), findings.end(),
                             [place](const CheckFinding &found) { return found.place == place; });
            if (first == findings.end() || (place == Place::Memo && leadsAstray(findings)))
                continue;
            if (Status status = mend(place); status.ok()) {
                m_report.push_back({fileOf(place), first->text + mendedBy(place)});
            } else {
                m_report.push_back({fileOf(place), status.error().detail, false});
                failed.push_back(place);
            }
        }
        if (Status status = m_files.writeOut(); !status.ok())
            return status;
        for (CheckFinding &left : checkTable(m_files, {})) {
            if (std::find(failed.begin(), failed.end(), left.place) == failed.end())
                m_report.push_back({fileOf(left.place), std::move(left.text), false});
        }
        return {};
    }

private:
    // Where fields lead to texts that are gone, the memo file was cut: it is left as it is, for
    // somebody to look at.
    static bool leadsAstray(const std::vector<CheckFinding> &findings)
    {
        return std::any_of(findings.begin(), findings.end(), [](const CheckFinding &found) {
            return found.place == Place::Row && found.text.find("memo") != std::string::npos;
        });
    }
    Status mend(Place place)
    {
        if (place == Place::Index)
            return m_files.mendTags();
        return place == Place::Memo ? m_files.mendMemoHeader() : m_files.mendEnds();
    }
    static const char *mendedBy(Place place)
    {
        return place == Place::Index ? "; the tags were built anew from the rows"
                                     : "; it was put right";
    }
    // Of a field that leads to no text the memo file is to blame as well as the row.
    std::string fileOf(Place place)
    {
        if (place == Place::Index)
            return m_files.indexPath();
        return place == Place::Memo ? m_files.memo()->path() : m_files.path();
    }

    TableFiles &m_files;
    std::vector<RepairLine> &m_report;
};

} // namespace

Status repairTable(TableFiles &files, std::vector<RepairLine> &report)
{
    return TableRepair(files, report).run();
}

} // namespace norvane::engine
