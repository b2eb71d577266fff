#include "Building/PictureWriter.h"

#include "Building/BuildError.h"
#include "Building/OrderedWork.h"
#include "Pictures/PicturePaths.h"
#include "Pictures/SymbolPicture.h"
#include "Pictures/SymbolReader.h"
#include "Reading/SourceError.h"
#include "Reading/TsvTable.h"

#include <QBuffer>
#include <QDir>
#include <QFile>

namespace samplelibrary {

namespace {

/// Thumbnails are seen small: their lines are heavier than those of a drawing.
constexpr double ThumbnailStroke = 4.0;
constexpr double LegendStroke = 2.5;

std::map<std::string, QColor> ReadTints(const SourceFiles& files)
{
    const TsvTable table("tints.tsv", files.Text("tints.tsv"));
    std::map<std::string, QColor> tints;
    for (std::size_t row = 0; row < table.RowCount(); ++row) {
        const QColor colour(QString::fromStdString(table.Cell(row, "colour")));
        if (!colour.isValid()) {
            throw SourceError(table.Where(row), "is no colour");
        }
        tints[table.Cell(row, "tint")] = colour;
    }
    return tints;
}

/// Draws the pictures of one kind.
class KindPictures
{
public:
    KindPictures(
        const QString& folder, const Kind& kind, const QColor& colour, const std::map<std::string, Symbol>& symbols)
        : m_folder(folder), m_kind(kind), m_colour(colour), m_symbols(symbols)
    {
    }

    void Write() const
    {
        for (const int pixels : ThumbnailPixels) {
            WriteFile(ThumbnailPath(m_kind.Slug, pixels), Png(SymbolNamed(m_kind.PlanSymbol), pixels, ThumbnailStroke));
        }
        const std::array<std::string, 3> views{m_kind.PlanSymbol, m_kind.ElevationSymbol, m_kind.ProfileSymbol};
        for (std::size_t view = 0; view < views.size(); ++view) {
            const Symbol& symbol = SymbolNamed(views[view]);
            WriteFile(LegendPath(m_kind.Slug, view, "png"), Png(symbol, LegendPixels, LegendStroke));
            WriteFile(LegendPath(m_kind.Slug, view, "svg"),
                QByteArray::fromStdString(SymbolSvg(symbol, m_colour, LegendStroke)));
        }
    }

private:
    const Symbol& SymbolNamed(const std::string& name) const
    {
        const auto found = m_symbols.find(name);
        if (found == m_symbols.end()) {
            throw SourceError("kinds.tsv", "there is no symbol \"" + name + '"');
        }
        return found->second;
    }

    QByteArray Png(const Symbol& symbol, int pixels, double stroke) const
    {
        QByteArray bytes;
        QBuffer buffer(&bytes);
        buffer.open(QIODevice::WriteOnly);
        DrawSymbol(symbol, m_colour, pixels, stroke).save(&buffer, "PNG");
        return bytes;
    }

    void WriteFile(const std::string& path, const QByteArray& bytes) const
    {
        const QString whole = m_folder + QLatin1Char('/') + QString::fromStdString(path);
        QDir().mkpath(QFileInfo(whole).path());
        QFile file(whole);
        const bool isWritten = file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.flush();
        if (!isWritten) {
            throw BuildError(whole.toStdString() + " cannot be written: " + file.errorString().toStdString());
        }
    }

    const QString& m_folder;
    const Kind& m_kind;
    const QColor& m_colour;
    const std::map<std::string, Symbol>& m_symbols;
};

} // namespace

void WritePictures(const SourceFiles& files, const ProductSource& source, const QString& folder, std::size_t jobs,
    const std::atomic<bool>& isStopped)
{
    const std::map<std::string, Symbol> symbols = ReadSymbols(files);
    const std::map<std::string, QColor> tints = ReadTints(files);
    const QString place = folder + QLatin1String("/static");
    OrderedWork<bool> work(source.Kinds.size(), [&](std::size_t index) {
        const Kind& kind = source.Kinds[index];
        if (isStopped) {
            throw BuildInterrupted();
        }
        if (tints.count(kind.Tint) == 0) {
            throw SourceError("kinds.tsv", "there is no tint \"" + kind.Tint + '"');
        }
        KindPictures(place, kind, tints.at(kind.Tint), symbols).Write();
        return true;
    });
    work.Run(jobs, [](bool&&) {});
}

} // namespace samplelibrary
