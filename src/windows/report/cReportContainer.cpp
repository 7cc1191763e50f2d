#include "windows/report/cReportContainer.h"

#include "windows/report/modReportStyle.h"

#include <QDir>
#include <QFontDatabase>
#include <QFontMetricsF>
#include <QTextBoundaryFinder>

#include <algorithm>

namespace {

constexpr int dotsPerInch = 96; // pixels of a page are measured so

QRect ToRect(const litehtml::position& place)
{
    return {place.x, place.y, place.width, place.height};
}

QColor ToColor(const litehtml::web_color& color)
{
    return {color.red, color.green, color.blue, color.alpha};
}

// The library hands pointers around as numbers.
template <typename tTarget>
tTarget& At(litehtml::uint_ptr handle)
{
    return *reinterpret_cast<tTarget*>(handle); // NOLINT(performance-no-int-to-ptr)
}

cReportCanvas& Canvas(litehtml::uint_ptr handle)
{
    return At<cReportCanvas>(handle);
}

} // namespace

cReportContainer::cReportContainer(const QString& family, const QString& folder, int longestWord)
    : m_family(family),
      m_folder(folder),
      m_longestWord(longestWord),
      m_familyBytes(family.toStdString())
{
}

litehtml::element::ptr cReportContainer::TakeClicked()
{
    return std::exchange(m_clicked, {});
}

litehtml::uint_ptr cReportContainer::Handle(cReportCanvas& canvas)
{
    return reinterpret_cast<litehtml::uint_ptr>(&canvas);
}

litehtml::uint_ptr cReportContainer::create_font(const char* faceName, int size, int weight,
                                                 litehtml::font_style italic, unsigned int decoration,
                                                 litehtml::font_metrics* metrics)
{
    const bool isFixed = QLatin1StringView(faceName).contains(QLatin1StringView("monospace"));
    QFont font(isFixed ? QFontDatabase::systemFont(QFontDatabase::FixedFont).family() : m_family);
    font.setPixelSize(std::max(1, size));
    font.setBold(weight >= 600);
    font.setItalic(italic == litehtml::fontStyleItalic);
    font.setUnderline((decoration & litehtml::font_decoration_underline) != 0);
    font.setHintingPreference(QFont::PreferNoHinting); // the same widths at every magnification
    const QFontMetricsF measures(font);
    auto made = std::make_unique<cFont>(cFont{font, qRound(measures.ascent())});
    if (metrics != nullptr) {
        metrics->ascent = made->Ascent;
        metrics->descent = qRound(measures.descent());
        metrics->height = metrics->ascent + metrics->descent;
        metrics->x_height = qRound(measures.xHeight());
        metrics->draw_spaces = decoration != 0;
    }
    m_fonts.push_back(std::move(made));
    return reinterpret_cast<litehtml::uint_ptr>(m_fonts.back().get());
}

void cReportContainer::delete_font(litehtml::uint_ptr font)
{
    std::erase_if(m_fonts,
                  [font](const auto& each) { return reinterpret_cast<litehtml::uint_ptr>(each.get()) == font; });
}

int cReportContainer::text_width(const char* text, litehtml::uint_ptr font)
{
    return qRound(QFontMetricsF(At<const cFont>(font).Font).horizontalAdvance(QString::fromUtf8(text)));
}

void cReportContainer::draw_text(litehtml::uint_ptr handle, const char* text, litehtml::uint_ptr font,
                                 litehtml::web_color color, const litehtml::position& place)
{
    const cFont& used = At<const cFont>(font);
    Canvas(handle).Text(ToRect(place), place.y + used.Ascent, QString::fromUtf8(text), used.Font, ToColor(color));
}

int cReportContainer::pt_to_px(int points) const
{
    return points * dotsPerInch / 72;
}

int cReportContainer::get_default_font_size() const
{
    return modReportStyle::FontSize;
}

const char* cReportContainer::get_default_font_name() const
{
    return m_familyBytes.c_str();
}

void cReportContainer::draw_list_marker(litehtml::uint_ptr handle, const litehtml::list_marker& marker)
{
    using enum cReportCanvas::eMark;
    const bool isSquare = marker.marker_type == litehtml::list_style_type_square;
    const bool isCircle = marker.marker_type == litehtml::list_style_type_circle;
    Canvas(handle).Mark(ToRect(marker.pos), isSquare ? Square : isCircle ? Circle : Disc, ToColor(marker.color));
}

void cReportContainer::draw_background(litehtml::uint_ptr handle, const litehtml::background_paint& background)
{
    if (background.color.alpha != 0) { // transparent ones come here too
        Canvas(handle).Fill(ToRect(background.clip_box), ToColor(background.color));
    }
    if (const QImage& picture = Picture(QString::fromStdString(background.image)); !picture.isNull()) {
        Canvas(handle).Picture(ToRect(background.clip_box), picture);
    }
}

void cReportContainer::draw_borders(litehtml::uint_ptr handle, const litehtml::borders& borders,
                                    const litehtml::position& place, bool /*root*/)
{
    const auto fill = [&](const litehtml::border& border, const QRect& area) {
        const bool isDrawn = border.width > 0 && border.style > litehtml::border_style_hidden;
        if (isDrawn && border.color.alpha != 0) {
            Canvas(handle).Fill(area, ToColor(border.color));
        }
    };
    const QRect box = ToRect(place);
    fill(borders.top, {box.x(), box.y(), box.width(), borders.top.width});
    fill(borders.bottom, {box.x(), place.bottom() - borders.bottom.width, box.width(), borders.bottom.width});
    fill(borders.left, {box.x(), box.y(), borders.left.width, box.height()});
    fill(borders.right, {place.right() - borders.right.width, box.y(), borders.right.width, box.height()});
}

void cReportContainer::on_anchor_click(const char* /*url*/, const litehtml::element::ptr& element)
{
    m_clicked = element;
}

void cReportContainer::set_cursor(const char* cursor)
{
    m_isOverLink = QLatin1StringView(cursor) == QLatin1StringView("pointer");
}

void cReportContainer::set_clip(const litehtml::position& place, const litehtml::border_radiuses& /*radius*/,
                                bool /*validX*/, bool /*validY*/)
{
    if (m_canvas != nullptr) {
        m_canvas->Clip(ToRect(place));
    }
}

void cReportContainer::del_clip()
{
    if (m_canvas != nullptr) {
        m_canvas->Unclip();
    }
}

void cReportContainer::get_client_rect(litehtml::position& client) const
{
    client = litehtml::position(0, 0, m_width, 1);
}

std::shared_ptr<litehtml::element> cReportContainer::create_element(const char* /*tag*/,
                                                                    const litehtml::string_map& /*attributes*/,
                                                                    const std::shared_ptr<litehtml::document>& /*doc*/)
{
    return nullptr; // the library's own elements
}

void cReportContainer::get_media_features(litehtml::media_features& media) const
{
    media.type = litehtml::media_type_screen;
    media.width = m_width;
    media.device_width = m_width;
    media.height = 1;
    media.device_height = 1;
    media.color = 8;
    media.color_index = 0;
    media.monochrome = 0;
    media.resolution = dotsPerInch;
}

void cReportContainer::get_language(litehtml::tstring& language, litehtml::tstring& culture) const
{
    language = "de";
    culture = "de-DE";
}

// The library breaks lines between its words, so a long one is handed to it in parts. None ends within a character.
void cReportContainer::split_text(const char* text, const std::function<void(const char*)>& onWord,
                                  const std::function<void(const char*)>& onSpace)
{
    const auto inParts = [&](const char* bytes) {
        const QString word = QString::fromUtf8(bytes);
        if (m_longestWord == 0 || word.size() <= m_longestWord) {
            onWord(bytes);
            return;
        }
        QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, word);
        qsizetype start = 0;
        while (start < word.size()) {
            finder.setPosition(std::min<qsizetype>(start + m_longestWord / 2, word.size()));
            if (!finder.isAtBoundary()) {
                finder.toNextBoundary();
            }
            onWord(word.sliced(start, finder.position() - start).toUtf8().constData());
            start = finder.position();
        }
    };
    document_container::split_text(text, inParts, onSpace);
}

// A page holds no files of its own but pictures, which are read when they are needed; no forms and no transformed
// texts.

void cReportContainer::load_image(const char* /*source*/, const char* /*base*/, bool /*redraw*/)
{
}

void cReportContainer::get_image_size(const char* source, const char* /*base*/, litehtml::size& size)
{
    const QImage& picture = Picture(QString::fromUtf8(source));
    size.width = picture.width();
    size.height = picture.height();
}

// Only from the page's own folder: a page fetches nothing from anywhere else.
const QImage& cReportContainer::Picture(const QString& source)
{
    static const QImage none;
    if (m_folder.isEmpty() || source.isEmpty() || source.startsWith(u'/') || source.contains(u"..")) {
        return none;
    }
    const auto known = m_pictures.constFind(source);
    return known != m_pictures.constEnd() ? *known
                                          : *m_pictures.insert(source, QImage(QDir(m_folder).filePath(source)));
}

void cReportContainer::set_caption(const char* /*caption*/)
{
}

void cReportContainer::set_base_url(const char* /*base*/)
{
}

void cReportContainer::link(const std::shared_ptr<litehtml::document>& /*document*/,
                            const litehtml::element::ptr& /*element*/)
{
}

void cReportContainer::transform_text(litehtml::tstring& /*text*/, litehtml::text_transform /*transform*/)
{
}

void cReportContainer::import_css(litehtml::tstring& text, const litehtml::tstring& /*url*/,
                                  litehtml::tstring& /*base*/)
{
    text.clear();
}
