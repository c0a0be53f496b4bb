#include "common/form/SetLabels.h"

#include "common/ui/Controls.h"
#include "db/clsCustomLabels.h"

#include <QLabel>

namespace
{

constexpr const char *WholeName = "wholeName"; // of a field whose label shows a part of it

} // namespace

void SetLabels(QWidget *form, const QString &tableFile)
{
    const auto labels = form->findChildren<QLabel *>();
    for (QLabel *label : labels) {
        const QString field = controlTag(label);
        if (field.isEmpty())
            continue;
        const QString whole = CustomLabels.GetCurrentLabelName(tableFile, field, true);
        if (whole.isEmpty())
            continue;
        QString name = clsCustomLabels::ShortName(whole);
        label->setProperty(WholeName, name == whole ? QVariant() : whole);
        label->setToolTip(name == whole ? QString() : whole.toHtmlEscaped());
        label->setTextFormat(Qt::PlainText); // a name may look like markup
        // A name is plain text, but on the label of a field an "&" would mark an access key.
        if (label->buddy() != nullptr)
            name.replace(QLatin1Char('&'), QLatin1String("&&"));
        label->setText(name);
    }
}

QString labelCaption(const QLabel *label)
{
    const QVariant whole = label->property(WholeName);
    if (whole.isValid())
        return whole.toString();
    const QString text = label->text();
    if (label->buddy() == nullptr)
        return text;
    QString caption;
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (text.at(i) == QLatin1Char('&') && i + 1 < text.size())
            ++i;
        caption.append(text.at(i));
    }
    return caption;
}
