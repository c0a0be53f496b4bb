// Turns a text in Markdown into a PDF: the specification sheet of the Help menu.
//
//   norvane_mkspecs TEXT.md RESULT.pdf
#include <QFile>
#include <QGuiApplication>
#include <QPageLayout>
#include <QPdfWriter>
#include <QTextDocument>

#include <cstdio>

namespace
{

constexpr QMarginsF paperMargins(20, 18, 20, 18); // millimetres

bool write(const QString &markdown, const QString &result)
{
    QTextDocument text;
    text.setDefaultFont(QFont(QStringLiteral("DejaVu Sans"), 10));
    text.setMarkdown(markdown);
    QPdfWriter pdf(result);
    pdf.setTitle(QStringLiteral("Norvane - Specifications"));
    pdf.setPageSize(QPageSize(QPageSize::A4));
    pdf.setPageMargins(paperMargins, QPageLayout::Millimeter);
    text.print(&pdf);
    return QFile(result).size() > 0;
}

} // namespace

int main(int argc, char *argv[])
{
    const QGuiApplication application(argc, argv);
    const QStringList arguments = QGuiApplication::arguments();
    QFile source(arguments.value(1));
    if (arguments.size() != 3 || !source.open(QIODevice::ReadOnly) ||
        !write(QString::fromUtf8(source.readAll()), arguments[2])) {
        std::fputs("norvane_mkspecs TEXT.md RESULT.pdf: cannot read the one or write the other\n",
                   stderr);
        return 1;
    }
    return 0;
}
