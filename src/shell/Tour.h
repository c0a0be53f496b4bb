// The guided tour: the real program goes through a working day by itself, on a database of its
// own, saves a picture of each step and looks at what was stored. Tour.cpp runs and watches it,
// TourSteps.cpp is the day, TourRecords.cpp its work on the records of a customer,
// TourReports.cpp its reports, and TourOffice.cpp what an administrator does in it.
#pragma once

#include "shell/Startup.h"
#include "shell/TourCamera.h"
#include "shell/TourVisitor.h"

#include <QTemporaryDir>

#include <functional>
#include <memory>

class FormWindow;
class frmCustomer;
class frmCustomerList;
class frmIssue;
class frmPS;

class Tour
{
public:
    // An empty folder makes the tour use a temporary one.
    Tour(const QString &pictures, const QString &folder);

    // Prints a line a step; the exit code: 0 when every step came out right.
    int run();

private:
    void prepare();
    void step(const QString &what, const std::function<void()> &body);
    void allSteps();

    // ---- the day (TourSteps.cpp)
    void start();
    void createDatabase();
    void enterFirstCustomer();
    void importOnSecondStation();
    void lookups();
    void openCustomer();
    void editCustomer();
    void showPreviews();
    void addSubscription(); // and the other records: TourRecords.cpp
    void attachContract(frmPS *form);
    void prepareTemplate(); // issues: TourIssues.cpp
    void workOnIssue();
    void noteAction(frmIssue *form);
    void closeIssue(frmIssue *form);
    void findIssue();
    void seeMyIssues();
    void showReports(); // TourReports.cpp
    void seeSecondStation();
    void extendList();
    void importSpreadsheet(); // these six: TourOffice.cpp
    void addUser();
    void purgeIssues();
    void rebuildIndex();
    void answerBox(int button, const char *picture); // a QDialogButtonBox::StandardButton
    void readHelp();
    void makeReport(); // TourReports.cpp
    void arrangeWindows();
    void reopen();
    void showAbout();
    void leave();

    // ---- acting on the real windows
    void shoot(const QString &name);
    void settle(); // lets the windows do what they have begun
    void press(const QString &action);
    void pressAndAnswer(const QString &action);
    frmCustomerList *lookup(qint32 type, const QString &text, const QString &picture);
    void logIn(const QString &picture);
    void pickFolder(const QString &picture);
    template <class Control>
    static Control *control(QWidget *window, const char *name);
    template <class Form>
    static Form *newestForm();
    static void need(bool condition, const QString &otherwise);

    // ---- the second workstation: norvanectl, a process of its own
    QString secondStation(const QStringList &arguments);
    void importRows(const QStringList &rows);
    QString storedField(qint32 rowid, const QString &field,
                        const QString &table = QStringLiteral("customers"));

    QTemporaryDir m_temporary;
    QString m_pictures;
    QString m_folder;
    TourCamera m_camera;
    std::unique_ptr<TourVisitor> m_visitor;
    std::unique_ptr<Startup> m_startup;
    qint32 m_customer = 0; // the one entered by hand
    int m_step = 0;
};
