// Preview of the text that a record form builds for its record.
#pragma once

#include "common/ui/FormWindow.h"

#include <memory>

namespace Ui
{
class frmRichEdit;
}

class frmRichEdit : public FormWindow
{
    Q_OBJECT
public:
    explicit frmRichEdit(QWidget *parent = nullptr);
    ~frmRichEdit() override;

    void Init(const QString &title, const QString &text);
    QSize sizeHint() const override;

private:
    std::unique_ptr<Ui::frmRichEdit> ui;
};
