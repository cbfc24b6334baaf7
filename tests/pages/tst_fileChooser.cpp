#include "support/fileChooser.h"

#include "support/dialogs.h"
#include "support/pageTest.h"

#include <QSignalSpy>

using namespace brel_common_qt_gui;
using melvox_test::cancelFileDialog;
using melvox_test::chooseFile;
using melvox_test::currentDir_t;
using melvox_test::folder_t;
using melvox_test::openFileDialog;

class tst_fileChooser : public melvox_test::test_t
{
    Q_OBJECT

private slots:
    void returnsAtOnce();
    void belongsToTheWindowInWhichTheOperatorWorks();
    void tellsWhatWasChosenAfterChangingTheDirectory();
    void tellsNothingWhenItIsCancelled();
    void takesNoFileThatIsNotThereToOpen();
    void takesANewNameToSave();
    void opensAnewAfterEachAnswer();
    void canBeShownAgainFromItsAnswer();
    void survivesTheWindowItStoodOver();
};

void tst_fileChooser::returnsAtOnce()
{
    fileChooser_t chooser(QFileDialog::AcceptOpen, "Open it", "Texts (*.txt)", 0);
    chooser.show();
    QVERIFY(openFileDialog());
    QCOMPARE(openFileDialog()->windowTitle(), QString("Open it"));
    QCOMPARE(openFileDialog()->nameFilters(), QStringList("Texts (*.txt)"));
}

void tst_fileChooser::belongsToTheWindowInWhichTheOperatorWorks()
{
    QWidget window;
    window.show();
    QApplication::setActiveWindow(&window);
    QVERIFY(melvox_test::waitFor([&] { return QApplication::activeWindow() == &window; }));
    fileChooser_t chooser(QFileDialog::AcceptOpen, "Open it", "Texts (*.txt)", 0);
    chooser.show();
    QCOMPARE(openFileDialog()->parentWidget(), &window);
}

void tst_fileChooser::tellsWhatWasChosenAfterChangingTheDirectory()
{
    currentDir_t current;
    folder_t folder;
    QString const path = folder.write("a.txt");
    fileChooser_t chooser(QFileDialog::AcceptOpen, "Open it", "Texts (*.txt)", 0);
    QSignalSpy selected(&chooser, SIGNAL(fileSelected(QString)));
    chooser.show();
    chooseFile(path);
    QCOMPARE(int(selected.count()), 1);
    QCOMPARE(selected.at(0).at(0).toString(), path);
    QCOMPARE(QDir::currentPath(), folder.path());
    QVERIFY(!openFileDialog());
}

void tst_fileChooser::tellsNothingWhenItIsCancelled()
{
    fileChooser_t chooser(QFileDialog::AcceptOpen, "Open it", "Texts (*.txt)", 0);
    QSignalSpy selected(&chooser, SIGNAL(fileSelected(QString)));
    QString const before = QDir::currentPath();
    chooser.show();
    cancelFileDialog();
    QCOMPARE(int(selected.count()), 0);
    QCOMPARE(QDir::currentPath(), before);
}

void tst_fileChooser::takesNoFileThatIsNotThereToOpen()
{
    fileChooser_t chooser(QFileDialog::AcceptOpen, "Open it", "Texts (*.txt)", 0);
    chooser.show();
    QCOMPARE(openFileDialog()->fileMode(), QFileDialog::ExistingFile);
}

void tst_fileChooser::takesANewNameToSave()
{
    currentDir_t current;
    folder_t folder;
    fileChooser_t chooser(QFileDialog::AcceptSave, "Save it", "Texts (*.txt)", 0);
    QSignalSpy selected(&chooser, SIGNAL(fileSelected(QString)));
    chooser.show();
    QCOMPARE(openFileDialog()->acceptMode(), QFileDialog::AcceptSave);
    chooseFile(folder.path("new.txt"));
    QCOMPARE(int(selected.count()), 1);
}

void tst_fileChooser::opensAnewAfterEachAnswer()
{
    fileChooser_t chooser(QFileDialog::AcceptOpen, "Open it", "Texts (*.txt)", 0);
    for (int i = 0; i < 3; ++i)
    {
        chooser.show();
        cancelFileDialog();
        QVERIFY(!openFileDialog());
    }
}

namespace
{

class insatiable_t : public QObject
{
    Q_OBJECT

public:
    insatiable_t() : chooser(QFileDialog::AcceptOpen, "Open it", "Texts (*.txt)", 0)
    {
        connect(&chooser, SIGNAL(fileSelected(QString)), SLOT(more()));
    }

    fileChooser_t chooser;

public slots:
    void more() { chooser.show(); }
};

} // namespace

void tst_fileChooser::canBeShownAgainFromItsAnswer()
{
    currentDir_t current;
    folder_t folder;
    QString const path = folder.write("a.txt");
    insatiable_t more;
    more.chooser.show();
    for (int i = 0; i < 3; ++i)
    {
        chooseFile(path);
        QVERIFY(openFileDialog());
    }
}

void tst_fileChooser::survivesTheWindowItStoodOver()
{
    fileChooser_t chooser(QFileDialog::AcceptOpen, "Open it", "Texts (*.txt)", 0);
    {
        QWidget window;
        window.show();
        QApplication::setActiveWindow(&window);
        QVERIFY(melvox_test::waitFor([&] { return QApplication::activeWindow() == &window; }));
        chooser.show();
    }
    QVERIFY(!openFileDialog());
    chooser.show();
    QVERIFY(openFileDialog());
}

QTEST_MAIN(tst_fileChooser)
#include "tst_fileChooser.moc"
