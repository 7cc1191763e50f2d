#include "windows/receipt/cPreviewView.h"

#include "base/cText.h"
#include "views/receipt/cReceipts.h"

#include <QFileInfo>
#include <QLabel>
#include <QPixmap>
#include <QScrollBar>
#include <QWheelEvent>

#include <algorithm>
#include <array>

namespace {

constexpr std::array zoomSteps{1.0, 1.25, 1.5, 2.0, 3.0, 4.0, 6.0};

QString Why(cPreview::eState state, const QString& path)
{
    switch (state) {
    case cPreview::eState::Shown: break;
    case cPreview::eState::Unknown:
        return cReceipts::IsDocument(path)
            ? cText::Tr("Für diese Art von Datei gibt es keine Vorschau. „Öffnen“ zeigt sie in einem anderen "
                        "Programm.")
            : cText::Tr("Für diese Art von Datei gibt es keine Vorschau. „Speichern unter…“ legt eine Kopie von ihr "
                        "ab.");
    case cPreview::eState::Damaged: return cText::Tr("Die Datei ist beschädigt oder kein Bild und kein PDF.");
    case cPreview::eState::TooLarge:
        return cText::Tr("Die Datei ist für eine Vorschau zu groß. „Öffnen“ zeigt sie in einem anderen Programm.");
    case cPreview::eState::Locked:
        return cText::Tr("Das PDF ist mit einem Passwort geschützt. „Öffnen“ zeigt es in einem anderen Programm.");
    }
    return {};
}

} // namespace

cPreviewView::cPreviewView(QWidget* parent)
    : QScrollArea(parent),
      m_reader(new cPreviewReader(this)),
      m_label(new QLabel(this))
{
    setAlignment(Qt::AlignCenter);
    setWidgetResizable(true);
    setFocusPolicy(Qt::StrongFocus);
    setAccessibleName(cText::Tr("Vorschau"));
    m_label->setAlignment(Qt::AlignCenter);
    m_label->setWordWrap(true);
    m_label->setTextFormat(Qt::PlainText);
    m_label->setMargin(fontMetrics().averageCharWidth());
    setWidget(m_label);
    setMinimumSize(fontMetrics().averageCharWidth() * 30, fontMetrics().height() * 10);
    connect(m_reader, &cPreviewReader::Done, this, &cPreviewView::Show);
}

void cPreviewView::ShowFile(const QString& path)
{
    m_path = path;
    m_page = 0;
    m_pages = 1;
    m_zoom = 0;
    m_hasPicture = false;
    Say(cText::Tr("Die Vorschau wird gelesen …"));
    Ask();
}

void cPreviewView::ShowText(const QString& text)
{
    m_reader->Forget();
    m_path.clear();
    m_pages = 1;
    m_hasPicture = false;
    Say(text);
    Q_EMIT Shown();
}

void cPreviewView::Say(const QString& text)
{
    m_label->setPixmap({});
    m_label->setMinimumSize(0, 0);
    m_label->setText(text);
    m_label->setAccessibleName(text);
    setAccessibleDescription(text);
}

void cPreviewView::ShowPage(int page)
{
    m_page = std::clamp(page, 0, m_pages - 1);
    verticalScrollBar()->setValue(0);
    Ask();
}

bool cPreviewView::CanZoom(int steps) const
{
    const int step = m_zoom + steps;
    return m_hasPicture && step >= 0 && step < static_cast<int>(zoomSteps.size());
}

void cPreviewView::Zoom(int steps)
{
    if (CanZoom(steps)) {
        m_zoom += steps;
        Ask();
    }
}

void cPreviewView::ShowWhole()
{
    m_zoom = 0;
    Ask();
}

void cPreviewView::Ask()
{
    if (m_path.isEmpty()) {
        return;
    }
    const int margin = 2 * m_label->margin();
    const QSizeF room =
        QSizeF(maximumViewportSize().shrunkBy({margin / 2, margin / 2, margin / 2, margin / 2})).expandedTo({1, 1});
    const double factor = zoomSteps.at(static_cast<std::size_t>(m_zoom)) * devicePixelRatioF();
    m_reader->Read({m_path, m_page, (room * factor).toSize()});
}

void cPreviewView::Show(const cPreview& preview)
{
    m_pages = preview.Pages;
    m_page = preview.Page;
    m_hasPicture = preview.State == cPreview::eState::Shown;
    if (m_hasPicture) {
        QPixmap picture = QPixmap::fromImage(preview.Image);
        picture.setDevicePixelRatio(devicePixelRatioF());
        const QString text =
            cText::Tr("Seite {0} von {1} von '{2}'",
                      {QString::number(m_page + 1), QString::number(m_pages), QFileInfo(m_path).fileName()});
        m_label->setPixmap(picture);
        m_label->setMinimumSize((QSizeF(picture.size()) / devicePixelRatioF()).toSize());
        m_label->setAccessibleName(text);
        setAccessibleDescription(text);
    } else {
        Say(Why(preview.State, m_path));
    }
    Q_EMIT Shown();
}

void cPreviewView::resizeEvent(QResizeEvent* event)
{
    QScrollArea::resizeEvent(event);
    if (m_zoom == 0) {
        Ask();
    }
}

void cPreviewView::wheelEvent(QWheelEvent* event)
{
    if (event->modifiers().testFlag(Qt::ControlModifier)) {
        Zoom(event->angleDelta().y() > 0 ? 1 : -1);
        event->accept();
        return;
    }
    QScrollArea::wheelEvent(event);
}
