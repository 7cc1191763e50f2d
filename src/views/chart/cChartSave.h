#pragma once

#include "views/chart/cChartData.h"

#include <QByteArray>
#include <QDate>

#include <functional>

struct cBookTools;

// Saves a chart as picture or as figures: asks for the file, whose ending decides, and writes it.
class cChartSave
{
public:
    // Makes the bytes of a picture; given by who can paint.
    struct cPictures
    {
        std::function<QByteArray(const cChartData& data)> Png;
        std::function<QByteArray(const cChartData& data)> Svg;
    };

    cChartSave(const cBookTools& tools, cPictures pictures);

    // Asks for the path; `today` becomes part of the proposed name. False when nothing was written.
    bool Run(const cChartData& data, QDate today);

    // Writes to the path, the format by its ending (.png, .svg, .csv). False after a message.
    [[nodiscard]] bool Write(const cChartData& data, const QString& path);

private:
    [[nodiscard]] bool Refuse(const QString& text);

    const cBookTools& m_tools;
    cPictures m_pictures;
};
