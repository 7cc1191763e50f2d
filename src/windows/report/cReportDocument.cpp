#include "windows/report/cReportDocument.h"

#include "windows/report/cReportContainer.h"
#include "windows/report/modReportStyle.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

// Keeps what is drawn instead of drawing it.
class cRecorder final : public cReportCanvas
{
public:
    void Text(const QRect& place, int /*baseLine*/, const QString& text, const QFont& font,
              const QColor& /*color*/) override
    {
        if (!text.trimmed().isEmpty()) {
            Pieces.push_back({place, text, font});
        }
    }
    void Fill(const QRect& place, const QColor& /*color*/) override { Pieces.push_back({place, {}, {}}); }
    void Mark(const QRect& /*place*/, eMark /*mark*/, const QColor& /*color*/) override {}
    void Picture(const QRect& place, const QImage& /*picture*/) override { Pieces.push_back({place, {}, {}}); }
    void Clip(const QRect& /*place*/) override {}
    void Unclip() override {}

    std::vector<cReportPiece> Pieces;
};

QRect PlaceOf(const litehtml::element& element)
{
    const litehtml::position place = element.get_placement();
    return {place.x, place.y, place.width, place.height};
}

// The words within an element.
void CollectWords(const litehtml::element& element, cReportDocument::cLink& link)
{
    for (std::size_t i = 0; i < element.get_children_count(); ++i) {
        const litehtml::element::ptr child = element.get_child(static_cast<int>(i));
        if (child->get_children_count() > 0) {
            CollectWords(*child, link);
        } else if (!child->is_white_space()) {
            litehtml::tstring text;
            child->get_text(text);
            link.Name += (link.Name.isEmpty() ? QString() : u" "_s) + QString::fromStdString(text);
            link.Places.append(PlaceOf(*child));
        }
    }
}

// In the order of the page.
litehtml::elements_vector LinkElements(litehtml::document& document)
{
    litehtml::elements_vector elements = document.root()->select_all("a");
    std::erase_if(elements, [](const litehtml::element::ptr& element) { return element->get_attr("href") == nullptr; });
    return elements;
}

} // namespace

cReportDocument::cReportDocument(const QString& html, const QString& family, const QString& folder, int longestWord)
    : m_container(std::make_unique<cReportContainer>(family, folder, longestWord)),
      m_context(std::make_unique<litehtml::context>())
{
    m_context->load_master_stylesheet(modReportStyle::MasterSheet());
    m_document = litehtml::document::createFromUTF8(html.toUtf8().constData(), m_container.get(), m_context.get());
}

cReportDocument::~cReportDocument() = default;

void cReportDocument::LayOut(int width)
{
    m_container->SetWidth(width);
    m_document->media_changed();
    m_document->render(width);
    m_text.reset();
    m_links.reset();
}

QSize cReportDocument::Size() const
{
    return {m_document->width(), m_document->height()};
}

void cReportDocument::Draw(cReportCanvas& canvas, const QRect& clip) const
{
    const litehtml::position area(clip.x(), clip.y(), clip.width(), clip.height());
    m_container->SetCanvas(&canvas);
    m_document->draw(cReportContainer::Handle(canvas), 0, 0, &area);
    m_container->SetCanvas(nullptr);
}

QString cReportDocument::Heading() const
{
    const litehtml::element::ptr root = m_document->root();
    const litehtml::element::ptr heading = root ? root->select_one("h1") : nullptr;
    litehtml::tstring text;
    if (heading) {
        heading->get_text(text);
    }
    return QString::fromStdString(text).simplified();
}

std::vector<cReportPiece> cReportDocument::Pieces() const
{
    cRecorder recorder;
    Draw(recorder, QRect(QPoint(), Size()));
    return std::move(recorder.Pieces);
}

// The library places cells, not rows.
std::vector<cReportDocument::cRow> cReportDocument::Rows() const
{
    std::vector<cRow> rows;
    const litehtml::elements_vector elements = m_document->root()->select_all("tr");
    for (const litehtml::element::ptr& element : elements) {
        cRow row;
        for (std::size_t i = 0; i < element->get_children_count(); ++i) {
            const litehtml::element::ptr cell = element->get_child(static_cast<int>(i));
            row.Place |= PlaceOf(*cell);
            row.IsHead = row.IsHead || std::string_view(cell->get_tagName()) == "th";
        }
        rows.push_back(row);
    }
    return rows;
}

const cReportText& cReportDocument::Text() const
{
    if (!m_text) {
        m_text.emplace(Pieces());
    }
    return *m_text;
}

const QList<cReportDocument::cLink>& cReportDocument::Links() const
{
    if (!m_links) {
        m_links = FindLinks();
    }
    return *m_links;
}

QRect cReportDocument::AnchorPlace(const QString& anchor) const
{
    // Compared one by one: a selector would have to spell out umlauts and digits in its own way.
    const litehtml::element::ptr root = m_document->root();
    for (const char* level : {"h1", "h2", "h3"}) {
        const litehtml::elements_vector headings = root ? root->select_all(level) : litehtml::elements_vector();
        for (const litehtml::element::ptr& heading : headings) {
            const char* id = heading->get_attr("id");
            if (id != nullptr && QString::fromUtf8(id) == anchor) {
                return PlaceOf(*heading);
            }
        }
    }
    return {};
}

QList<cReportDocument::cLink> cReportDocument::FindLinks() const
{
    QList<cLink> links;
    const litehtml::elements_vector elements = LinkElements(*m_document);
    for (const litehtml::element::ptr& element : elements) {
        cLink link{QString::fromUtf8(element->get_attr("href")), {}, {}};
        CollectWords(*element, link);
        links.append(link);
    }
    return links;
}

void cReportDocument::MouseMove(QPoint point)
{
    litehtml::position::vector boxes;
    m_document->on_mouse_over(point.x(), point.y(), point.x(), point.y(), boxes);
}

void cReportDocument::MousePress(QPoint point)
{
    litehtml::position::vector boxes;
    MouseMove(point); // the library presses what it was last over
    m_document->on_lbutton_down(point.x(), point.y(), point.x(), point.y(), boxes);
}

int cReportDocument::MouseRelease(QPoint point)
{
    litehtml::position::vector boxes;
    m_document->on_lbutton_up(point.x(), point.y(), point.x(), point.y(), boxes);
    const litehtml::element::ptr clicked = m_container->TakeClicked();
    const litehtml::elements_vector elements = LinkElements(*m_document);
    const auto found = std::find(elements.begin(), elements.end(), clicked);
    return found == elements.end() ? -1 : static_cast<int>(found - elements.begin());
}

void cReportDocument::MouseLeave()
{
    litehtml::position::vector boxes;
    m_document->on_mouse_leave(boxes);
}

bool cReportDocument::IsOverLink() const
{
    return m_container->IsOverLink();
}
