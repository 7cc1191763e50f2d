#include "import/xml/modXmlNode.h"

#include "base/modDate.h"

#include <cstring>
#include <utility>

namespace {

class cPrefixRemover : public pugi::xml_tree_walker
{
public:
    bool for_each(pugi::xml_node& node) override // name given by the library
    {
        const char* const colon = std::strchr(node.name(), ':');
        if (colon != nullptr) {
            node.set_name(QByteArray(colon + 1).constData());
        }
        return true;
    }
};

} // namespace

bool modXmlNode::Load(pugi::xml_document& document, QByteArrayView xml)
{
    constexpr unsigned int flags = pugi::parse_minimal | pugi::parse_escapes | pugi::parse_cdata | pugi::parse_eol
        | pugi::parse_embed_pcdata | pugi::parse_wconv_attribute;
    const pugi::xml_parse_result result =
        document.load_buffer(xml.data(), static_cast<std::size_t>(xml.size()), flags, pugi::encoding_utf8);
    cPrefixRemover remover;
    return result && (!xml.contains(':') || document.traverse(remover)); // no colon, no prefix
}

QString modXmlNode::Text(const pugi::xml_node& node)
{
    const QByteArrayView value = node.child_value();
    if (value.isEmpty()) {
        return {}; // most nodes that are asked for are not there
    }
    QString text = QString::fromUtf8(value);
    if (value.contains('\n')) {
        text.replace(u'\n', u' ');
    }
    return std::move(text).trimmed();
}

QDate modXmlNode::Day(const pugi::xml_node& node)
{
    constexpr qsizetype daySize = 10;
    const QString text = Text(node);
    const bool hasEnd = text.size() == daySize || QStringView(u"T Z+-").contains(text.mid(daySize, 1));
    return hasEnd ? modDate::FromIso(text.left(daySize)) : QDate();
}

bool modXmlNode::IsText(const pugi::xml_node& node, const char* text)
{
    return QByteArrayView(node.child_value()).trimmed() == QByteArrayView(text);
}
