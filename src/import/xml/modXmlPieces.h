#pragma once

#include <QByteArray>
#include <QByteArrayView>

#include <utility>
#include <vector>

// Large XML documents in pieces, so that a statement of 100,000 transactions never stands in memory as one tree.
namespace modXmlPieces {

struct cPieces
{
    QByteArray Skeleton;                // the document with an empty element, <x piece="n" count="m"/>, for each
                                        // row of pieces with nothing but blanks between them
    std::vector<QByteArrayView> Pieces; // the elements with their tags, views into the document

    // The piece of this number, once: a file may hold elements that look like ours. Empty when there is none.
    [[nodiscard]] QByteArrayView Take(unsigned int number)
    {
        return number < Pieces.size() ? std::exchange(Pieces[number], QByteArrayView()) : QByteArrayView();
    }

    // Hands over the pieces that an element of the skeleton stands for. An empty one, and nothing behind it, tells of
    // an element that is not ours.
    template <typename tTake>
    void TakeAll(unsigned int first, unsigned int count, tTake take)
    {
        bool isOurs = true;
        for (unsigned int i = 0; i < count && isOurs; ++i) {
            const QByteArrayView piece = Take(first + i);
            isOurs = !piece.isEmpty();
            take(piece);
        }
    }
};

// Cuts out every element of the name; a namespace prefix is not looked at. Elements inside a piece stay there,
// and what is never closed stays where it is, so that the parser of the skeleton meets the mistake.
[[nodiscard]] cPieces Cut(QByteArrayView xml, QByteArrayView name);

// Where the text behind `end` begins; the end of the text when `end` never comes.
[[nodiscard]] qsizetype Behind(QByteArrayView text, QByteArrayView end, qsizetype from);

} // namespace modXmlPieces
