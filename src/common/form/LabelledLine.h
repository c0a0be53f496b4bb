// A record as plain text: a label in a column of its own, and the value behind it.
#pragma once

#include "common/base/clsSystem.h"
#include "common/form/SetLabels.h"
#include "common/form/StatisticCtl.h"

#include <QCoreApplication>
#include <QString>

class LabelledLine
{
    Q_DECLARE_TR_FUNCTIONS(LabelledLine)
public:
    // In characters; a label as long as that has no gap behind it, a longer one is cut.
    explicit LabelledLine(int labelWidth) : m_width(labelWidth) {}

    QString operator()(const QString &label, const QString &value, int breaks = 1) const
    {
        return clsSystem::PadSpaces(label, m_width) + value + QString(breaks, u'\n');
    }
    // What the label says now.
    QString operator()(const QLabel *label, const QString &value, int breaks = 1) const
    {
        return (*this)(labelCaption(label), value, breaks);
    }
    // Who changed the record last, and when.
    QString lastModified(const StatisticCtl *LE) const
    {
        return (*this)(tr("Last Modified By:"), LE->ModifiedBy()) +
               (*this)(tr("Last Modified On:"), LE->ModifiedOn()) +
               (*this)(tr("Last Modified At:"), LE->ModifiedAt());
    }

private:
    int m_width;
};
