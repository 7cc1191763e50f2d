#pragma once

#include "windows/report/cReportCanvas.h"

#include <QFont>
#include <QHash>
#include <QImage>

#include <litehtml/litehtml.h>

#include <memory>
#include <vector>

// What the rendering library asks of its surroundings: fonts, and somewhere to draw. A drawing handle is a pointer to a
// cReportCanvas. The base has no virtual destructor; nobody owns a container through it.
class cReportContainer final : public litehtml::document_container // NOLINT(cppcoreguidelines-virtual-class-destructor)
{
public:
    // `folder`: of the pictures; empty for none. Words with more characters than `longestWord` may go on in the next
    // line; 0: none does.
    cReportContainer(const QString& family, const QString& folder, int longestWord);

    void SetWidth(int width) { m_width = width; }
    [[nodiscard]] litehtml::element::ptr TakeClicked(); // the link of the last click; then none
    [[nodiscard]] bool IsOverLink() const { return m_isOverLink; }

    static litehtml::uint_ptr Handle(cReportCanvas& canvas);

    litehtml::uint_ptr create_font(const char* faceName, int size, int weight, litehtml::font_style italic,
                                   unsigned int decoration, litehtml::font_metrics* metrics) override;
    void delete_font(litehtml::uint_ptr font) override;
    int text_width(const char* text, litehtml::uint_ptr font) override;
    void draw_text(litehtml::uint_ptr handle, const char* text, litehtml::uint_ptr font, litehtml::web_color color,
                   const litehtml::position& place) override;
    [[nodiscard]] int pt_to_px(int points) const override;
    [[nodiscard]] int get_default_font_size() const override;
    [[nodiscard]] const char* get_default_font_name() const override;
    void draw_list_marker(litehtml::uint_ptr handle, const litehtml::list_marker& marker) override;
    void load_image(const char* source, const char* base, bool redraw) override;
    void get_image_size(const char* source, const char* base, litehtml::size& size) override;
    void draw_background(litehtml::uint_ptr handle, const litehtml::background_paint& background) override;
    void draw_borders(litehtml::uint_ptr handle, const litehtml::borders& borders, const litehtml::position& place,
                      bool root) override;
    void set_caption(const char* caption) override;
    void set_base_url(const char* base) override;
    void link(const std::shared_ptr<litehtml::document>& document, const litehtml::element::ptr& element) override;
    void on_anchor_click(const char* url, const litehtml::element::ptr& element) override;
    void set_cursor(const char* cursor) override;
    void transform_text(litehtml::tstring& text, litehtml::text_transform transform) override;
    void import_css(litehtml::tstring& text, const litehtml::tstring& url, litehtml::tstring& base) override;
    void set_clip(const litehtml::position& place, const litehtml::border_radiuses& radius, bool validX,
                  bool validY) override;
    void del_clip() override;
    void get_client_rect(litehtml::position& client) const override;
    std::shared_ptr<litehtml::element> create_element(const char* tag, const litehtml::string_map& attributes,
                                                      const std::shared_ptr<litehtml::document>& document) override;
    void get_media_features(litehtml::media_features& media) const override;
    void get_language(litehtml::tstring& language, litehtml::tstring& culture) const override;
    void split_text(const char* text, const std::function<void(const char*)>& onWord,
                    const std::function<void(const char*)>& onSpace) override;

    // The canvas of the drawing that is going on: clipping comes without a handle.
    void SetCanvas(cReportCanvas* canvas) { m_canvas = canvas; }

private:
    struct cFont
    {
        QFont Font;
        int Ascent = 0;
    };

    [[nodiscard]] const QImage& Picture(const QString& source);

    QString m_family;
    QString m_folder;
    int m_longestWord;
    QHash<QString, QImage> m_pictures; // by address; null for what could not be read
    std::string m_familyBytes;
    std::vector<std::unique_ptr<cFont>> m_fonts;
    cReportCanvas* m_canvas = nullptr;
    int m_width = 0;
    litehtml::element::ptr m_clicked;
    bool m_isOverLink = false;
};
