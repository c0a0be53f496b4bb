// The topic numbers of the manual: each is an anchor "t<number>" in data/help/userman.html.
#pragma once

namespace help
{

enum Topic {
    MainWindow = 1000,
    ProductOverview = 1010,
    Tutorial = 1020,
    Tour = 1030,
    Login = 1040,
    RecordUnderEdit = 1050,
    LookupLists = 1060,
    ChangePassword = 1065,
    Users = 1070,
    DataFolders = 1080,
    Backup = 1090,
    LookupCustomer = 1200,
    CustomerList = 1210,
    FindIssues = 1220, // and records by their number
    MyIssues = 1230,
    Customer = 1300,
    Issue = 1310,
    IssueActions = 1315,
    Subscription = 1320,
    IssueTemplates = 1335,
    Customizations = 1350,
    EmailOptions = 1360,
    DataImport = 1370,
    ReportList = 1390,
    ReportDefinition = 1400,
    ReportDisplay = 1410,
    PurgeIssues = 1510,
    DatabaseMaintenance = 1520,
    Printing = 1600,
    Keyboard = 1610
};

} // namespace help
