// The interface of every screen that shows one record. RecordForm implements the life that all of
// them share; a form says only what is its own.
#pragma once

#include <QString>

class clsForm
{
public:
    virtual ~clsForm() = default;

    virtual void Init(qint32 rowid, bool bEdit) = 0;
    virtual void InitControls() = 0;
    virtual void LoadData() = 0;
    virtual void SetUI() = 0;
    virtual void SetLock(bool bLock) = 0;
    virtual void DoEditModeBtn() = 0;
    virtual bool ValidateData() = 0;
    virtual bool SaveData() = 0;
    virtual bool DiscardChanges() = 0;
    virtual void UpdateLastEditCtl() = 0;
    virtual QString FormContent() = 0;
    virtual QString FormPrint() = 0;
    virtual QString FormEmail() = 0;
};
