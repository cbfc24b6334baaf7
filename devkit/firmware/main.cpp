#include "firmware/firmwareFile.h"
#include "firmware/programOptions.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QFile>
#include <QRandomGenerator>
#include <QSaveFile>
#include <QTextStream>

#include <vector>

using namespace melvox_firmware;

namespace
{

int const EXIT_WRONG_USE = 2;
qint64 const BLOCK = 1024 * 1024;        // bytes
int const LARGEST_KILOBYTES = 16 * 1024; // what the address range of a component holds
quint32 const SEED = 4711;               // the same packages each time

QString tr(char const* text)
{
    return QCoreApplication::translate("melvox_firmware", text);
}

int fail(int code, QString const& text)
{
    QTextStream(stderr) << "melvox_firmware: " << text << '\n';
    return code;
}

/** Reads "NAV=1.14.33", with the product for all. Empty, or what is wrong. */
QString readPart(QString const& text, int product, part_t& part)
{
    QString const name = text.section('=', 0, 0);
    QString const version = text.section('=', 1);
    part.component = componentFromName(name.toStdString());
    part.version = version.toStdString();
    part.product = product;
    if (part.component < 0)
    {
        QStringList names;
        for (int i = 0; componentName(i); ++i)
            names << componentName(i);
        return tr("there is no component \"%1\"; there are: %2").arg(name, names.join(", "));
    }
    if (version.isEmpty() || version.contains(' '))
        return tr("give %1 a version without blanks, such as %1=1.14.33").arg(componentName(part.component));
    return QString();
}

/** An image that looks like code to whoever compresses it: different bytes, the same each time. */
void writeImage(packageWriter_t& writer, QRandomGenerator& random, int kilobytes, QIODevice& out)
{
    for (int i = 0; i < kilobytes; ++i)
    {
        quint32 words[256];
        random.fillRange(words);
        writer.add(reinterpret_cast<char const*>(words), sizeof words);
        std::string const text = writer.takeText();
        out.write(text.data(), qint64(text.size()));
    }
}

int make(QString const& path, QStringList const& components, int product, int kilobytes)
{
    std::vector<part_t> parts;
    for (QString const& component : components)
    {
        part_t part;
        QString const wrong = readPart(component, product, part);
        if (!wrong.isEmpty())
            return fail(EXIT_WRONG_USE, wrong);
        parts.push_back(part);
    }
    if (parts.empty())
        return fail(EXIT_WRONG_USE, tr("name the components of the package, such as NAV=1.14.33"));
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return fail(EXIT_FAILURE, tr("cannot write %1: %2").arg(path, file.errorString()));
    QRandomGenerator random(SEED);
    packageWriter_t writer;
    for (part_t const& part : parts)
    {
        writer.start(part);
        writeImage(writer, random, kilobytes, file);
    }
    writer.finish();
    std::string const end = writer.takeText();
    file.write(end.data(), qint64(end.size()));
    if (!file.commit())
        return fail(EXIT_FAILURE, tr("cannot write %1: %2").arg(path, file.errorString()));
    return EXIT_SUCCESS;
}

/** Empty, or what is wrong. */
QString read(QString const& path, packageReader_t& reader)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return file.errorString();
    QByteArray block;
    bool good = true;
    while (good && !(block = file.read(BLOCK)).isEmpty())
        good = reader.feed(block.constData(), std::size_t(block.size()));
    if (good && file.error() != QFile::NoError)
        return file.errorString();
    return good && reader.finish() ? QString() : QString::fromStdString(reader.error());
}

int look(QStringList const& paths, bool list)
{
    if (paths.isEmpty())
        return fail(EXIT_WRONG_USE, tr("name the files to look at"));
    int bad = 0;
    for (QString const& path : paths)
    {
        packageReader_t reader;
        QString const wrong = read(path, reader);
        if (!wrong.isEmpty())
        {
            fail(EXIT_FAILURE, path + ": " + wrong);
            ++bad;
            continue;
        }
        QTextStream out(stdout);
        out << path << (list ? ":\n" : ": good\n");
        for (std::size_t i = 0; list && i < reader.parts().size(); ++i)
        {
            part_t const& part = reader.parts()[i];
            out << "  " << QString(componentName(part.component)).leftJustified(14)
                << QString::fromStdString(part.version).leftJustified(14) << tr("product %1").arg(part.product) << "  "
                << tr("%1 bytes").arg(part.size) << '\n';
        }
    }
    return bad == 0 ? EXIT_SUCCESS : EXIT_FAILURE;
}

bool readNumber(QString const& text, int lowest, int highest, int& number)
{
    bool isNumber = false;
    number = text.toInt(&isNumber);
    return isNumber && number >= lowest && number <= highest;
}

int run(QCommandLineParser const& parser)
{
    QStringList arguments = parser.positionalArguments();
    QString const what = arguments.isEmpty() ? QString() : arguments.takeFirst();
    int product = 0;
    int kilobytes = 0;
    if (!readNumber(parser.value("product"), 0, 999999999, product))
        return fail(EXIT_WRONG_USE, tr("--product takes a number of 0 or more"));
    if (!readNumber(parser.value("size"), 1, LARGEST_KILOBYTES, kilobytes))
        return fail(EXIT_WRONG_USE, tr("--size takes 1 to %1 kilobytes").arg(LARGEST_KILOBYTES));
    if (what == "make" && !arguments.isEmpty())
        return make(arguments.first(), arguments.mid(1), product, kilobytes);
    if (what == "list" || what == "check")
        return look(arguments, what == "list");
    return fail(EXIT_WRONG_USE, tr("say make FILE COMPONENT=VERSION..., list FILE... or check FILE...; --help tells "
                                   "more."));
}

QList<QCommandLineOption> knownOptions()
{
    return {
        {{"h", "help"}, tr("Lists the options.")},
        {{"v", "version"}, tr("Prints the version.")},
        {"product", tr("The product that the components are made for, 8 unless told."), "number", "8"},
        {"size", tr("Kilobytes of each component, 16 unless told."), "kilobytes", "16"},
    };
}

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName("melvox_firmware");
    QCoreApplication::setApplicationVersion(MELVOX_VERSION);

    QCommandLineParser parser;
    parser.setApplicationDescription(
        tr("Makes, lists and checks firmware packages: S-record files of one or more components."));
    parser.addOptions(knownOptions());
    parser.addPositionalArgument("what", tr("make, list or check"), "make|list|check");
    parser.addPositionalArgument("file", tr("the package; list and check take several"));
    parser.addPositionalArgument("component", tr("for make: its name and version, such as NAV=1.14.33"),
                                 "[COMPONENT=VERSION...]");
    if (!parser.parse(QCoreApplication::arguments()))
        return fail(EXIT_WRONG_USE, melvox_firmware::misunderstood(parser.errorText(), knownOptions()));
    if (parser.isSet("version"))
        parser.showVersion();
    if (parser.isSet("help"))
        parser.showHelp();
    return run(parser);
}
