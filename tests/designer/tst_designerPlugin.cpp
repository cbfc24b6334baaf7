#include "support/test.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QPluginLoader>
#include <QUiLoader>
#include <QWidget>
#include <QXmlStreamReader>
#include <QtUiPlugin/QDesignerCustomWidgetCollectionInterface>

namespace
{

/** A widget as a form names it. */
struct widget_t
{
    QString className;
    QString objectName;
};

/** What a form says of a class that is not Qt's. */
struct customClass_t
{
    QString className;
    QString base;
    QString header;
};

struct form_t
{
    QList<widget_t> widgets;
    QList<customClass_t> customClasses;
};

customClass_t readCustomClass(QXmlStreamReader& xml)
{
    customClass_t result;
    while (xml.readNextStartElement())
    {
        QString const element = xml.name().toString();
        QString const text = xml.readElementText(QXmlStreamReader::IncludeChildElements);
        if (element == "class")
            result.className = text;
        else if (element == "extends")
            result.base = text;
        else if (element == "header")
            result.header = text;
    }
    return result;
}

form_t readForm(QString const& path)
{
    form_t form;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return form;
    QXmlStreamReader xml(&file);
    while (!xml.atEnd())
    {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        QXmlStreamAttributes const attributes = xml.attributes();
        if (xml.name() == QLatin1String("widget"))
            form.widgets << widget_t{attributes.value("class").toString(), attributes.value("name").toString()};
        else if (xml.name() == QLatin1String("customwidget"))
            form.customClasses << readCustomClass(xml);
    }
    return form;
}

QFileInfoList forms()
{
    return QDir(MELVOX_FORMS).entryInfoList(QStringList("*.ui"), QDir::Files, QDir::Name);
}

/** The widget of that name, the form itself included. */
QWidget* part(QWidget* form, QString const& name)
{
    return form->objectName() == name ? form : form->findChild<QWidget*>(name);
}

} // namespace

/** The plug-in that lets Qt Designer open forms as they look. */
class tst_designerPlugin : public melvox_test::test_t
{
    Q_OBJECT

private:
    static QList<QDesignerCustomWidgetInterface*> widgets();
    static QDesignerCustomWidgetInterface* widgetOf(QString const& className);

private slots:
    void initTestCase();
    void offersEveryWidgetThatFormsShare();
    void tellsWhatFormsSayOfEachWidget();
    void putsANewWidgetOnAForm();
    void opensEveryFormWithItsRealWidgets_data();
    void opensEveryFormWithItsRealWidgets();
};

void tst_designerPlugin::initTestCase()
{
    // Forms are to open with this plug-in alone, not with what else the machine's Designer has.
    QCoreApplication::setLibraryPaths(QStringList());
    QVERIFY(!forms().isEmpty());
}

QList<QDesignerCustomWidgetInterface*> tst_designerPlugin::widgets()
{
    QPluginLoader loader(MELVOX_DESIGNER_PLUGIN);
    auto const plugin = qobject_cast<QDesignerCustomWidgetCollectionInterface*>(loader.instance());
    return plugin ? plugin->customWidgets() : QList<QDesignerCustomWidgetInterface*>();
}

QDesignerCustomWidgetInterface* tst_designerPlugin::widgetOf(QString const& className)
{
    QList<QDesignerCustomWidgetInterface*> const all = widgets();
    for (QDesignerCustomWidgetInterface* widget : all)
    {
        if (widget->name() == className)
            return widget;
    }
    return nullptr;
}

void tst_designerPlugin::offersEveryWidgetThatFormsShare()
{
    static char const* const CLASSES[] = {"angleEdit_t", "distanceEdit_t", "latitudeEdit_t", "longitudeEdit_t",
                                          "scrollBarTreeWidget_t"};
    for (char const* name : CLASSES)
        QVERIFY2(widgetOf(QString("brel_common_qt_gui::") + name), name);
}

void tst_designerPlugin::tellsWhatFormsSayOfEachWidget()
{
    QFileInfoList const files = forms();
    for (QFileInfo const& file : files)
    {
        QList<customClass_t> const classes = readForm(file.filePath()).customClasses;
        for (customClass_t const& custom : classes)
        {
            QDesignerCustomWidgetInterface const* const widget = widgetOf(custom.className);
            QVERIFY2(widget, qPrintable(file.fileName() + ": " + custom.className));
            QCOMPARE(widget->includeFile(), custom.header);
            QVERIFY2(widget->domXml().contains("<extends>" + custom.base + "</extends>"), qPrintable(file.fileName()));
        }
    }
}

void tst_designerPlugin::putsANewWidgetOnAForm()
{
    QWidget form;
    QList<QDesignerCustomWidgetInterface*> const all = widgets();
    for (QDesignerCustomWidgetInterface* widget : all)
    {
        QWidget* const made = widget->createWidget(&form);
        QCOMPARE(made->parentWidget(), &form);
        QCOMPARE(QString(made->metaObject()->className()), widget->name());
        QVERIFY(widget->domXml().contains("class=\"" + widget->name() + "\""));
    }
}

void tst_designerPlugin::opensEveryFormWithItsRealWidgets_data()
{
    QTest::addColumn<QString>("path");
    QFileInfoList const files = forms();
    for (QFileInfo const& file : files)
        QTest::newRow(qPrintable(file.completeBaseName())) << file.filePath();
}

void tst_designerPlugin::opensEveryFormWithItsRealWidgets()
{
    QFETCH(QString, path);
    QUiLoader loader;
    loader.addPluginPath(QFileInfo(MELVOX_DESIGNER_PLUGIN).path());
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QScopedPointer<QWidget> const form(loader.load(&file));
    QVERIFY2(form, qPrintable(loader.errorString()));

    QList<widget_t> const expected = readForm(path).widgets;
    QVERIFY(!expected.isEmpty());
    for (widget_t const& widget : expected)
    {
        QWidget const* const found = part(form.data(), widget.objectName);
        QVERIFY2(found, qPrintable(widget.objectName));
        QCOMPARE(QString(found->metaObject()->className()), widget.className);
    }
}

QTEST_MAIN(tst_designerPlugin)
#include "tst_designerPlugin.moc"
