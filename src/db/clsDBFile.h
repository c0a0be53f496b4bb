// One data file of a database as maintenance works on it: full paths.
#pragma once

#include <QString>

struct clsDBFile {
    QString table;
    QString index;
    QString indexSource; // the empty index that the program comes with
};
