// Which folder may include what. The order of the layers is kept here and nowhere else.
#include "house/SourceTree.h"

#include <gtest/gtest.h>

#include <QFileInfo>
#include <QLibraryInfo>
#include <QRegularExpression>

namespace
{

struct Layer {
    QString folder;
    QStringList own;     // folders of ours, with what lies below them
    QStringList modules; // of Qt
};

// The first layer whose folder a file lies in is its own, so the deeper ones stand first.
const std::vector<Layer> &layers()
{
    static const QStringList core{"QtCore"};
    static const QStringList widgets{"QtCore", "QtGui", "QtWidgets", "QtPrintSupport"};
    static const QStringList drawing = widgets + QStringList{"QtSvg"}; // the icons
    static const QStringList shell = widgets + QStringList{"QtNetwork"};
    static const std::vector<Layer> all{
        {"src/db/engine", {"db/engine"}, {}},
        {"src/common/base", {"common/base"}, core},
        {"src/db", {"db", "common/base"}, core},
        {"src/common/ui", {"common/ui", "common/base"}, drawing},
        {"src/common/form", {"common/form", "common/ui", "common/base", "db"}, widgets},
        {"src/forms", {"forms", "common", "db"}, widgets},
        {"src/search", {"search", "common", "db"}, widgets},
        {"src/reports", {"reports", "common", "db"}, widgets},
        {"src/admin", {"admin", "common", "db"}, widgets},
        {"src/shell", {"shell", "admin", "reports", "search", "forms", "common", "db"}, shell},
        {"src/ctl", {"ctl", "db", "common/base"}, core},
    };
    return all;
}

const Layer *layerOf(const SourceFile &file)
{
    for (const Layer &layer : layers()) {
        if (file.path.startsWith(layer.folder + u'/'))
            return &layer;
    }
    return nullptr;
}

// The Qt module a header belongs to, empty when it is none of Qt's.
QString qtModule(const QString &header)
{
    static const QString headers = QLibraryInfo::path(QLibraryInfo::HeadersPath);
    if (header.startsWith("Qt") && header.contains(u'/'))
        return header.section(u'/', 0, 0);
    for (const char *module : {"QtCore", "QtGui", "QtWidgets", "QtPrintSupport", "QtNetwork",
                               "QtSvg", "QtSvgWidgets", "QtTest", "QtSql", "QtXml", "QtDBus"}) {
        if (QFileInfo::exists(headers + u'/' + module + u'/' + header))
            return module;
    }
    return {};
}

// Made by the build from a form or a class of the same folder.
bool isGenerated(const QString &header)
{
    return header.startsWith("ui_") || header.startsWith("moc_") || header.endsWith(".moc");
}

bool mayInclude(const Layer &layer, const QString &header, bool quoted)
{
    if (!quoted) {
        const QString module = qtModule(header);
        return module.isEmpty() ? !header.startsWith(u'Q') : layer.modules.contains(module);
    }
    if (isGenerated(header))
        return layer.modules.contains("QtWidgets") || header.endsWith(".moc");
    for (const QString &folder : layer.own) {
        if (header.startsWith(folder + u'/'))
            return true;
    }
    return false;
}

} // namespace

TEST(Layers, EveryIncludeGoesInAnAllowedDirection)
{
    static const QRegularExpression include("^\\s*#\\s*include\\s*([<\"])([^>\"]+)[>\"]");
    int includes = 0;
    for (const SourceFile &file : sourceFiles("src")) {
        const Layer *layer = layerOf(file);
        ASSERT_NE(nullptr, layer) << "no rule for " << qPrintable(file.path);
        for (const QString &line : file.lines) {
            const auto match = include.match(line);
            if (!match.hasMatch())
                continue;
            ++includes;
            EXPECT_TRUE(mayInclude(*layer, match.captured(2), match.captured(1) == "\""))
                << qPrintable(file.path) << " includes " << qPrintable(match.captured(2));
        }
    }
    EXPECT_GT(includes, 100);
}

TEST(Layers, TheRulesTellRightFromWrong)
{
    const auto allowed = [](const char *folder, const char *header, bool quoted) {
        const Layer *layer = layerOf({QString(folder) + "/x.cpp", {}});
        return layer != nullptr && mayInclude(*layer, header, quoted);
    };
    EXPECT_TRUE(allowed("src/db/engine", "vector", false));
    EXPECT_TRUE(allowed("src/db/engine", "sys/stat.h", false));
    EXPECT_FALSE(allowed("src/db/engine", "QString", false));
    EXPECT_FALSE(allowed("src/db/engine", "common/base/Ansi.h", true));
    EXPECT_TRUE(allowed("src/common/base", "QString", false));
    EXPECT_FALSE(allowed("src/common/base", "QWidget", false));
    EXPECT_FALSE(allowed("src/db", "QtGui/QColor", false));
    EXPECT_FALSE(allowed("src/db/import", "common/ui/Grid.h", true));
    EXPECT_FALSE(allowed("src/common/ui", "db/clsDB.h", true));
    EXPECT_FALSE(allowed("src/forms", "search/frmCustomerList.h", true));
    EXPECT_FALSE(allowed("src/search", "shell/frmMain.h", true));
    EXPECT_FALSE(allowed("src/ctl", "common/ui/Grid.h", true));
    EXPECT_FALSE(allowed("src/db", "clsDB.h", true)); // paths count from src
    EXPECT_TRUE(allowed("src/shell", "QLocalServer", false));
}

TEST(Layers, HeadersAreIncludedOnce)
{
    for (const SourceFile &file : sourceFiles("src")) {
        if (file.path.endsWith(".h")) {
            EXPECT_TRUE(file.lines.contains("#pragma once")) << qPrintable(file.path);
        }
    }
}
