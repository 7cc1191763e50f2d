// Turns the chapters of the manual into pages: makeManual FOLDER_OF_CHAPTERS FOLDER_OF_PAGES
// Links between chapters become links between pages, headings get the anchors that the chapters name them by, README.md
// becomes the first page. Pictures are looked for in "bilder" beside the pages.
#include <QDir>
#include <QFile>
#include <QHash>
#include <QRegularExpression>
#include <QString>

#include <cmark-gfm-core-extensions.h>
#include <cmark-gfm.h>

#include <cstdio>
#include <memory>

using namespace Qt::Literals::StringLiterals;

namespace {

template <auto Free>
struct cFree
{
    template <typename tThing>
    void operator()(tThing* thing) const
    {
        Free(thing);
    }
};

using pParser = std::unique_ptr<cmark_parser, cFree<cmark_parser_free>>;
using pNode = std::unique_ptr<cmark_node, cFree<cmark_node_free>>;
using pWalk = std::unique_ptr<cmark_iter, cFree<cmark_iter_free>>;

// Colours are those for white paper, as everywhere in the program's pages; the window turns them over in the dark.
constexpr const char* page = R"(<!DOCTYPE html>
<html lang="de"><head><meta charset="utf-8"/><title>%1</title>
<style>
body { margin: 8px 20px 40px 20px; max-width: 800px; font-family: sans-serif; font-size: 13px; line-height: 1.45; }
h1, h2, h3, p, ol, ul, pre, table { display: block; }
thead { display: table-row-group; }
table { display: table; border-spacing: 0; margin: 8px 0 12px 0; }
h1 { font-size: 22px; margin: 6px 0 12px 0; }
h2 { font-size: 17px; margin: 26px 0 8px 0; }
h3 { font-size: 14px; margin: 18px 0 6px 0; }
p { margin: 0 0 10px 0; }
ul, ol { margin: 0 0 10px 0; padding-left: 0; margin-left: 24px; }
ol { list-style-type: decimal; }
li { margin: 0 0 5px 0; }
li p { margin: 0; }
th, td { padding: 4px 14px 4px 0; border-bottom: 1px solid #d0d4d9; vertical-align: top; text-align: left; }
code, pre { font-family: monospace; background: #eef0f3; }
pre { padding: 8px 10px; margin: 0 0 12px 0; white-space: pre-wrap; }
img { max-width: 100%; margin: 4px 0; }
a { color: #1a5fb4; text-decoration: underline; }
</style></head>
<body>
%2</body></html>
)";

// "../bilder/x.png" lies beside the pages, "02-kontoauszug.md#buchen" is a page.
QString Address(QString address)
{
    if (address.contains(u':')) {
        return address;
    }
    if (address.startsWith(u"../bilder/")) {
        return address.mid(3);
    }
    return address.replace(u"README.md"_s, u"index.html"_s).replace(QRegularExpression(u"\\.md(?=#|$)"_s), u".html"_s);
}

void MendAddresses(cmark_node& document)
{
    const pWalk walk(cmark_iter_new(&document));
    while (cmark_iter_next(walk.get()) != CMARK_EVENT_DONE) {
        cmark_node* node = cmark_iter_get_node(walk.get());
        const cmark_node_type type = cmark_node_get_type(node);
        if (type == CMARK_NODE_LINK || type == CMARK_NODE_IMAGE) {
            cmark_node_set_url(node, Address(QString::fromUtf8(cmark_node_get_url(node))).toUtf8().constData());
        }
    }
}

// "Sprache, Zahlen, Währung" is "sprache-zahlen-währung", as where the chapters are read in a browser of sources.
QString Anchor(const QString& heading)
{
    QString plain = heading;
    plain.remove(QRegularExpression(u"<[^>]*>|&[a-z]+;"_s));
    return plain.toLower()
        .remove(QRegularExpression(u"[^\\w -]"_s, QRegularExpression::UseUnicodePropertiesOption))
        .replace(u' ', u'-');
}

QString WithAnchors(const QString& html)
{
    static const QRegularExpression heading(u"<(h[1-6])>(.*?)</h[1-6]>"_s);
    QString anchored;
    QHash<QString, int> seen; // the second of the same name gets a number
    qsizetype end = 0;
    auto found = heading.globalMatch(html);
    while (found.hasNext()) {
        const QRegularExpressionMatch match = found.next();
        const QString anchor = Anchor(match.captured(2));
        const int before = seen[anchor]++;
        const QString name = before == 0 ? anchor : anchor + u'-' + QString::number(before);
        anchored += html.mid(end, match.capturedStart() - end);
        anchored += u"<%1 id=\"%2\">%3</%1>"_s.arg(match.captured(1), name, match.captured(2));
        end = match.capturedEnd();
    }
    return anchored + html.mid(end);
}

QString Html(const QByteArray& chapter)
{
    cmark_gfm_core_extensions_ensure_registered();
    const pParser parser(cmark_parser_new(CMARK_OPT_DEFAULT));
    cmark_parser_attach_syntax_extension(parser.get(), cmark_find_syntax_extension("table"));
    cmark_parser_feed(parser.get(), chapter.constData(), static_cast<size_t>(chapter.size()));
    const pNode document(cmark_parser_finish(parser.get()));
    MendAddresses(*document);
    char* html = cmark_render_html(document.get(), CMARK_OPT_DEFAULT, cmark_parser_get_syntax_extensions(parser.get()));
    const QString text = WithAnchors(QString::fromUtf8(html));
    cmark_get_default_mem_allocator()->free(html);
    return text;
}

bool MakePage(const QString& source, const QString& target)
{
    QFile chapter(source);
    QFile made(target);
    if (!chapter.open(QIODevice::ReadOnly) || !made.open(QIODevice::WriteOnly)) {
        return false;
    }
    const QString html = Html(chapter.readAll());
    static const QRegularExpression first(u"<h1[^>]*>(.*?)</h1>"_s);
    const QByteArray bytes = QString::fromUtf8(page).arg(first.match(html).captured(1), html).toUtf8();
    return made.write(bytes) == bytes.size();
}

} // namespace

int main(int argc, char* argv[])
{
    if (argc != 3) {
        std::fputs("makeManual FOLDER_OF_CHAPTERS FOLDER_OF_PAGES\n", stderr);
        return 2;
    }
    const QDir chapters(QString::fromLocal8Bit(argv[1]));
    const QDir pages(QString::fromLocal8Bit(argv[2]));
    const QStringList names = chapters.entryList({u"*.md"_s}, QDir::Files, QDir::Name);
    for (const QString& name : names) {
        if (!MakePage(chapters.filePath(name), pages.filePath(Address(name)))) {
            std::fprintf(stderr, "makeManual: %s cannot be read, or its page not written\n", qPrintable(name));
            return 1;
        }
    }
    return names.isEmpty() ? 1 : 0;
}
