#include "brel_common_qt_gui/messageLights.h"
#include "brel_common_qt_gui/scrollBarTreeWidget.h"
#include "support/test.h"
#include "typing.h"

#include <QElapsedTimer>
#include <QHeaderView>
#include <QImage>
#include <QLabel>
#include <QScrollBar>
#include <QTimer>

using namespace brel_common_qt_gui;

namespace
{

bool isLit(QLabel const& label)
{
    return label.property("lit").toBool();
}

/** What the middle of the label looks like. */
QRgb colorOf(QLabel& label)
{
    label.resize(20, 20);
    QImage picture(label.size(), QImage::Format_RGB32);
    label.render(&picture);
    return picture.pixel(10, 10);
}

bool runsATimer(QObject const& object)
{
    QList<QTimer*> const timers = object.findChildren<QTimer*>();
    for (int i = 0; i < timers.size(); ++i)
    {
        if (timers.at(i)->isActive())
            return true;
    }
    return false;
}

void fill(QTreeWidget& tree, int rows)
{
    for (int i = 0; i < rows; ++i)
        (new QTreeWidgetItem(&tree))->setText(0, QString("row %1 with a text that is somewhat wide").arg(i));
}

} // namespace

/** Where messages come from. */
class streams_t : public QObject
{
    Q_OBJECT

public:
    void bring(int stream) { emit messageReceived(stream); }

signals:
    void messageReceived(int stream);
};

class tst_touchWidgets : public melvox_test::test_t
{
    Q_OBJECT

private slots:
    void lightsAreDarkAtFirst();
    void messageLightsItsOwnStreamOnly();
    void streamMayHaveSeveralLights();
    void lightGoesDarkHalfASecondAfterTheLastMessage();
    void eachLightGoesDarkInItsTurn();
    void noTimerRunsWhileAllLightsAreDark();
    void litAndDarkLookDifferent();
    void labelsMayGoWhileTheyAreLit();
    void labelAddedAgainChangesItsStream();
    void lightsMayGoWhileTheyAreLit();

    void rowsAndHeaderAreLargeEnough();
    void scrollBarsAreLargeEnough();
    void decorationOfTheRootIsAsInAnyTree();

private:
    void setUp() override;
    void tearDown() override;

    streams_t* m_streams;
    messageLights_t* m_lights;
};

void tst_touchWidgets::setUp()
{
    m_streams = new streams_t;
    m_lights = new messageLights_t(nullptr, nullptr);
    connect(m_streams, SIGNAL(messageReceived(int)), m_lights, SLOT(light(int)));
}

void tst_touchWidgets::tearDown()
{
    delete m_lights;
    delete m_streams;
}

void tst_touchWidgets::lightsAreDarkAtFirst()
{
    QLabel label;
    m_lights->addLight(0, &label);
    QVERIFY(!isLit(label));
    QVERIFY(qGray(colorOf(label)) < 100);
}

void tst_touchWidgets::messageLightsItsOwnStreamOnly()
{
    QLabel pvt;
    QLabel other;
    m_lights->addLight(0, &pvt);
    m_lights->addLight(3, &other);
    m_streams->bring(3);
    QVERIFY(!isLit(pvt));
    QVERIFY(isLit(other));
    m_streams->bring(1);
    QVERIFY(!isLit(pvt));
    m_streams->bring(0);
    QVERIFY(isLit(pvt));
}

void tst_touchWidgets::streamMayHaveSeveralLights()
{
    QLabel first;
    QLabel second;
    m_lights->addLight(2, &first);
    m_lights->addLight(2, &second);
    m_streams->bring(2);
    QVERIFY(isLit(first));
    QVERIFY(isLit(second));
}

void tst_touchWidgets::lightGoesDarkHalfASecondAfterTheLastMessage()
{
    QLabel label;
    m_lights->addLight(0, &label);
    QElapsedTimer sinceFirst;
    sinceFirst.start();
    m_streams->bring(0);
    QVERIFY(melvox_test::waitFor([&]() { return sinceFirst.elapsed() >= 300; }));
    QElapsedTimer sinceLast;
    sinceLast.start();
    m_streams->bring(0);
    QVERIFY(melvox_test::waitFor([&]() { return !isLit(label); }));
    QVERIFY2(sinceLast.elapsed() >= 490, qPrintable(QString::number(sinceLast.elapsed())));
}

void tst_touchWidgets::eachLightGoesDarkInItsTurn()
{
    QLabel first;
    QLabel second;
    m_lights->addLight(0, &first);
    m_lights->addLight(3, &second);
    m_streams->bring(0);
    QElapsedTimer timer;
    timer.start();
    QVERIFY(melvox_test::waitFor([&]() { return timer.elapsed() >= 250; }));
    m_streams->bring(3);
    QVERIFY(melvox_test::waitFor([&]() { return !isLit(first); }));
    QVERIFY(isLit(second));
    QVERIFY(melvox_test::waitFor([&]() { return !isLit(second); }));
}

void tst_touchWidgets::noTimerRunsWhileAllLightsAreDark()
{
    QLabel label;
    m_lights->addLight(0, &label);
    QVERIFY(!runsATimer(*m_lights));
    m_streams->bring(7);
    QVERIFY(!runsATimer(*m_lights));
    m_streams->bring(0);
    QVERIFY(runsATimer(*m_lights));
    QVERIFY(melvox_test::waitFor([&]() { return !isLit(label); }));
    QVERIFY(!runsATimer(*m_lights));
}

void tst_touchWidgets::litAndDarkLookDifferent()
{
    QLabel label;
    m_lights->addLight(0, &label);
    QRgb const dark = colorOf(label);
    QString const darkText = label.accessibleDescription();
    m_streams->bring(0);
    QVERIFY(qGreen(colorOf(label)) > qGreen(dark) + 100);
    QVERIFY(label.accessibleDescription() != darkText);
    QVERIFY(melvox_test::waitFor([&]() { return !isLit(label); }));
    QCOMPARE(colorOf(label), dark);
    QCOMPARE(label.accessibleDescription(), darkText);
}

void tst_touchWidgets::labelsMayGoWhileTheyAreLit()
{
    QLabel* const gone = new QLabel;
    QLabel stays;
    m_lights->addLight(0, gone);
    m_lights->addLight(0, &stays);
    m_streams->bring(0);
    delete gone;
    m_streams->bring(0);
    QVERIFY(melvox_test::waitFor([&]() { return !isLit(stays); }));
    QVERIFY(!runsATimer(*m_lights));
}

void tst_touchWidgets::labelAddedAgainChangesItsStream()
{
    QLabel label;
    m_lights->addLight(0, &label);
    m_lights->addLight(1, &label);
    m_streams->bring(0);
    QVERIFY(!isLit(label));
    m_streams->bring(1);
    QVERIFY(isLit(label));
}

void tst_touchWidgets::lightsMayGoWhileTheyAreLit()
{
    QLabel label;
    messageLights_t* const lights = new messageLights_t(nullptr, &label);
    connect(m_streams, SIGNAL(messageReceived(int)), lights, SLOT(light(int)));
    lights->addLight(0, &label);
    m_streams->bring(0);
    delete lights;
    m_streams->bring(0);
    melvox_test::settle();
}

void tst_touchWidgets::rowsAndHeaderAreLargeEnough()
{
    scrollBarTreeWidget_t tree;
    tree.setHeaderLabels(QStringList("Name"));
    fill(tree, 3);
    QTreeWidgetItem* const child = new QTreeWidgetItem(tree.topLevelItem(0));
    tree.expandAll();
    QVERIFY(melvox_test::showActive(tree));
    for (int i = 0; i < 3; ++i)
        QVERIFY(tree.visualItemRect(tree.topLevelItem(i)).height() >= 40);
    QVERIFY(tree.visualItemRect(child).height() >= 40);
    QVERIFY(tree.header()->height() >= 40);
}

void tst_touchWidgets::scrollBarsAreLargeEnough()
{
    scrollBarTreeWidget_t tree;
    fill(tree, 50);
    tree.resizeColumnToContents(0);
    tree.header()->setStretchLastSection(false);
    tree.resize(200, 300);
    QVERIFY(melvox_test::showActive(tree));
    QVERIFY(tree.verticalScrollBar()->isVisible());
    QVERIFY(tree.horizontalScrollBar()->isVisible());
    QVERIFY(tree.verticalScrollBar()->width() >= 40);
    QVERIFY(tree.horizontalScrollBar()->height() >= 40);
    QVERIFY(tree.viewport()->geometry().right() < tree.verticalScrollBar()->mapTo(&tree, QPoint(0, 0)).x());
    tree.verticalScrollBar()->setValue(tree.verticalScrollBar()->maximum());
    QVERIFY(tree.viewport()->rect().contains(tree.visualItemRect(tree.topLevelItem(49)).bottomLeft()));
}

void tst_touchWidgets::decorationOfTheRootIsAsInAnyTree()
{
    scrollBarTreeWidget_t tree;
    QTreeWidget any;
    QCOMPARE(tree.rootIsDecorated(), any.rootIsDecorated());
    QCOMPARE(tree.isSortingEnabled(), any.isSortingEnabled());
    tree.setRootIsDecorated(false);
    QVERIFY(!tree.rootIsDecorated());
}

QTEST_MAIN(tst_touchWidgets)
#include "tst_touchWidgets.moc"
