#include "Products/ComponentMaker.h"
#include "Reading/SourceError.h"
#include "Reading/SourceReader.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace {

using namespace samplelibrary;

/// A copy of the source on disk in which a fault can be made.
class SourceFaults : public testing::Test
{
protected:
    SourceFaults()
    {
        const SourceFiles compiledIn;
        const QString root = QStringLiteral(":/sample-library");
        QDirIterator files(root, QDir::Files, QDirIterator::Subdirectories);
        while (files.hasNext()) {
            const QString name = QDir(root).relativeFilePath(files.next());
            QDir().mkpath(QFileInfo(m_folder.filePath(name)).path());
            Write(name, compiledIn.Text(name.toStdString()));
        }
    }

    void Write(const QString& name, const std::string& text)
    {
        QFile file(m_folder.filePath(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        ASSERT_EQ(file.write(text.data(), static_cast<qint64>(text.size())), static_cast<qint64>(text.size()));
    }

    /// Puts one line at the end of a file.
    void Append(const QString& name, const std::string& line)
    {
        Write(name, Files().Text(name.toStdString()) + line + '\n');
    }

    SourceFiles Files() const { return SourceFiles(m_folder.path()); }

    /// What reading and making the last end category of the file says.
    std::string Fault() const
    {
        try {
            const ProductSource source = ReadSource(Files());
            for (const EndCategory& category : source.EndCategories) {
                if (category.Code == "X") {
                    ComponentMaker(source, category, category.Name, "C1").Make(0);
                }
            }
        } catch (const SourceError& fault) {
            const std::string text = fault.what();
            return text.substr(text.find(": ") + 2);
        }
        return "no fault";
    }

    const QString m_water = QStringLiteral("end-categories/water-supply.tsv");
    QTemporaryDir m_folder;
};

TEST_F(SourceFaults, NoneInTheSourceItself)
{
    EXPECT_EQ(Fault(), "no fault");
    EXPECT_EQ(Files().Digest(), SourceFiles().Digest());
}

TEST_F(SourceFaults, AnyChangedByteChangesTheDigest)
{
    Append(QStringLiteral("symbols.txt"), "#");
    EXPECT_NE(Files().Digest(), SourceFiles().Digest());
}

TEST_F(SourceFaults, UnknownPredefinedType)
{
    Append(m_water, "WAT\tPIPE\tX\tROUND\tpipe-welded\t管\tPipe\t-");
    EXPECT_EQ(Fault(), "PipeSegment has no predefined type \"ROUND\"");
}

TEST_F(SourceFaults, UnknownProfile)
{
    Append(m_water, "WAT\tPIPE\tX\tSPOOL\tpipe-x\t管\tPipe\t-");
    EXPECT_EQ(Fault(), "there is no profile \"pipe-x\"");
}

TEST_F(SourceFaults, UnknownSizeTable)
{
    Append(m_water, "WAT\tPIPE\tX\tSPOOL\tpipe-welded\t管\tPipe\tsizes=none");
    EXPECT_EQ(Fault(), "there is no size table \"none\"");
}

TEST_F(SourceFaults, UnknownParameter)
{
    Append(m_water, "WAT\tPIPE\tX\tSPOOL\tpipe-welded\t管\tPipe\tColour=1");
    EXPECT_EQ(Fault(), "there is no parameter \"Colour\"");
}

TEST_F(SourceFaults, ValueOutsideTheEnumeration)
{
    Append(m_water, "WAT\tPIPE\tX\tSPOOL\tpipe-welded\t管\tPipe\tJoint=GLUED|THR");
    EXPECT_EQ(Fault(), "\"GLUED\" is no value of Joint");
}

TEST_F(SourceFaults, TextWhereANumberIsWanted)
{
    Append(m_water, "WAT\tPIPE\tX\tSPOOL\tpipe-welded\t管\tPipe\tPN=low|1");
    EXPECT_EQ(Fault(), "\"low\" is no value of PN");
}

TEST_F(SourceFaults, OptionWithoutAValue)
{
    Append(m_water, "WAT\tPIPE\tX\tSPOOL\tpipe-welded\t管\tPipe\tJoint");
    EXPECT_EQ(Fault(), "the option \"Joint\" is not name=value");
}

TEST_F(SourceFaults, NoFamilyTypeLeft)
{
    Append(m_water, "WAT\tPIPE\tX\tSPOOL\tpipe-welded\t管\tPipe\twhen=DN>9000");
    EXPECT_EQ(Fault(), "no combination of the axes has a family type");
}

TEST_F(SourceFaults, TwoFamilyTypesOfOneName)
{
    Append(m_water, "WAT\tPIPE\tX\tSPOOL\tpipe-welded\t管\tPipe\ttype=DN");
    EXPECT_EQ(Fault(), "two family types of C1-001 are named \"DN\"");
}

TEST_F(SourceFaults, TwoParametersOfOneName)
{
    Append(QStringLiteral("parameters.tsv"), "Bore\tNumber\tmm\tDIM\t-\t外径\tBore\t-");
    Append(m_water, "WAT\tPIPE\tX\tSPOOL\tpipe-welded\t管\tPipe\tBore=1");
    EXPECT_EQ(Fault(), "two parameters are named \"外径\" or \"Bore\", the second is Bore");
}

TEST_F(SourceFaults, ParameterWithAnUnknownUnit)
{
    Append(QStringLiteral("parameters.tsv"), "Bore\tNumber\tfurlong\tDIM\t-\t孔\tBore\t-");
    EXPECT_EQ(Fault(), "there is no unit \"furlong\"");
}

TEST_F(SourceFaults, PropertyWithoutAChineseName)
{
    Append(QStringLiteral("ifc/ifc4-property-sets.csv"), "IfcPump,Pset_PumpTypeCommon,Colourfulness,IfcReal");
    EXPECT_EQ(Fault(), "\"Colourfulness\" is not listed in ifc/properties.tsv");
}

TEST_F(SourceFaults, BrokenProfileFile)
{
    Append(QStringLiteral("profiles/pumps.json"), "}");
    EXPECT_NE(Fault().find("parse error"), std::string::npos) << Fault();
}

TEST_F(SourceFaults, MissingFile)
{
    ASSERT_TRUE(QFile::remove(m_folder.filePath(QStringLiteral("units.tsv"))));
    EXPECT_EQ(Fault().find("cannot be read, "), 0U) << Fault();
}

} // namespace
