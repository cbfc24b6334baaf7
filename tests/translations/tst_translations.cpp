#include "allPages.h"

#include "support/everything.h"
#include "support/pageCreator.h"
#include "support/pageTest.h"

#include <QApplication>
#include <QCheckBox>
#include <QGroupBox>
#include <QProgressBar>
#include <QPushButton>
#include <QRegularExpression>
#include <QTextEdit>
#include <QTranslator>

#include <random>

using namespace brel_common_qt;
using namespace brel_common_qt_gui;

namespace
{

#define MELVOX_PAGE(name) {#name, melvox_test::creator<name##_t>()},
melvox_test::page_t const PAGES[] = {MELVOX_ALL_PAGES(MELVOX_PAGE)};
#undef MELVOX_PAGE

QChar const MARK(0x25c6); // a sign that no text has

// Pages that only show, or that send through another one.
QStringList const SILENT = {"melvoxUiDtmWarnDialog",
                            "melvoxUiExtendedNavInfo",
                            "melvoxUiFirmwareUpdate",
                            "melvoxUiUsbFirmwareSelectDialog",
                            "melvoxUiUsbProfileListDialog",
                            "melvoxUiUsbWebUiSelectDialog",
                            "melvoxUiVHDInfo",
                            "melvoxUiVirtualPortConfigDialog",
                            "melvoxUiWiFiPasskeyDialog",
                            "melvoxVersionWarnDialog"};
// Pages whose edits take too large a number and then say so.
QStringList const COMPLAINING = {"melvoxUiAntennaConfigDialog",       "melvoxUiCorrectionsReceiver",
                                 "melvoxUiDifferentialConfiguration", "melvoxUiEthernetConfiguration",
                                 "melvoxUiRtkConfiguration",          "melvoxUiSolutionControl",
                                 "melvoxUiVirtualPortConfigDialog"};

bool isOfTheLibrary(QString const& context)
{
    return context.startsWith("melvox") || context.startsWith("brel_common_qt_gui::melvox") || context == "QObject";
}

/** Marks every text that it is asked for, and notes those of the library that German lacks. */
class marker_t : public QTranslator
{
public:
    explicit marker_t(QTranslator const* german) : m_german(german) {}

    bool isEmpty() const override { return false; }

    QString translate(char const* context, char const* text, char const* comment, int number) const override
    {
        if (isOfTheLibrary(context) && m_german->translate(context, text, comment, number).isEmpty())
            m_missing << QString("%1: \"%2\"").arg(context, text);
        return *text ? MARK + QString::fromUtf8(text) : QString();
    }

    QStringList const& missing() const { return m_missing; }

private:
    QTranslator const* m_german;
    mutable QStringList m_missing;
};

/** Installed as long as it lives. */
class language_t
{
public:
    explicit language_t(QTranslator* translator) : m_translator(translator)
    {
        if (m_translator)
            qApp->installTranslator(m_translator);
    }

    ~language_t()
    {
        if (m_translator)
            qApp->removeTranslator(m_translator);
    }

private:
    Q_DISABLE_COPY(language_t)

    QTranslator* m_translator;
};

QStringList textsOfItems(QWidget const* widget)
{
    QStringList texts;
    if (QComboBox const* const combo = qobject_cast<QComboBox const*>(widget))
    {
        for (int i = 0; i < combo->count(); ++i)
            texts << combo->itemText(i);
    }
    if (QTreeWidget const* const tree = qobject_cast<QTreeWidget const*>(widget))
    {
        for (int column = 0; column < tree->columnCount(); ++column)
        {
            texts << tree->headerItem()->text(column);
            for (int row = 0; row < tree->topLevelItemCount(); ++row)
                texts << tree->topLevelItem(row)->text(column);
        }
    }
    return texts;
}

/** All that an operator sees or hears of one widget; not what he types. */
QStringList textsOf(QWidget const* widget)
{
    QStringList texts = textsOfItems(widget);
    texts << widget->toolTip() << widget->statusTip() << widget->whatsThis() << widget->accessibleName()
          << widget->accessibleDescription() << widget->property("keypadPrompt").toString();
    if (widget->isWindow() && !widget->parentWidget())
        texts << widget->windowTitle();
    if (QLabel const* const label = qobject_cast<QLabel const*>(widget))
        texts << label->text();
    if (QAbstractButton const* const button = qobject_cast<QAbstractButton const*>(widget))
        texts << button->text();
    if (QGroupBox const* const group = qobject_cast<QGroupBox const*>(widget))
        texts << group->title();
    if (QLineEdit const* const edit = qobject_cast<QLineEdit const*>(widget))
        texts << edit->placeholderText();
    if (QTextEdit const* const edit = qobject_cast<QTextEdit const*>(widget))
        texts << edit->toPlainText().split('\n');
    if (QProgressBar const* const bar = qobject_cast<QProgressBar const*>(widget))
        texts << bar->text();
    return texts;
}

QStringList textsOfAll(QWidget const* page)
{
    QStringList texts = textsOf(page);
    QList<QWidget*> const widgets = page->findChildren<QWidget*>();
    for (QWidget const* widget : widgets)
        texts << textsOf(widget);
    texts.removeAll(QString());
    return texts;
}

bool hasLetters(QString const& text)
{
    return text.contains(QRegularExpression("\\p{L}"));
}

/** Texts that come from the libraries that the pages stand on, and are translated there or nowhere. */
bool isOfThePlatform(QString const& text)
{
    static QStringList const WORDS = {YesString, NoString, NoneString, UnknownString, NoDataString};
    if (WORDS.contains(text) || melvoxPortFromName(text) != MELVOX_PORT_UNKNOWN)
        return true;
    for (int component = 0; component < MELVOX_NUM_FW_COMPONENTS; ++component)
    {
        if (text == melvoxFirmwareComponentString(static_cast<melvoxFirmwareComponent_t>(component)))
            return true;
    }
    // Positions, distances, times in UTC.
    static QRegularExpression const MEASURE("^(-?[0-9. °'\"]+)?(m|ft|N|S|E|W)$|" + utcString + "$");
    return text.contains(MEASURE);
}

void collectWords(QVariant const& value, QStringList& words)
{
    if (value.userType() == QMetaType::QVariantMap)
    {
        QVariantMap const fields = value.toMap();
        for (QVariant const& field : fields)
            collectWords(field, words);
    }
    else if (value.userType() == QMetaType::QVariantList)
    {
        QVariantList const elements = value.toList();
        for (QVariant const& element : elements)
            collectWords(element, words);
    }
    else
        words << value.toString().trimmed();
}

void answerBoxes()
{
    while (QMessageBox* const box = melvox_test::openBox())
    {
        if (box->button(QMessageBox::Yes))
            answer(QMessageBox::Yes);
        else
            melvox_test::closeBox();
    }
}

void press(QWidget* page, char const* slot)
{
    // Dialogs need not have all of them.
    if (page->metaObject()->indexOfSlot(QByteArray(slot) + "()") >= 0)
        QMetaObject::invokeMethod(page, slot);
}

/** Chooses anything everywhere: an item of each combo box, a row of each tree. */
void choose(QWidget* page, std::mt19937& chance)
{
    QList<QComboBox*> const combos = page->findChildren<QComboBox*>();
    for (QComboBox* combo : combos)
    {
        if (combo->isEnabled() && combo->count() > 0)
            combo->setCurrentIndex(static_cast<int>(chance() % combo->count()));
    }
    QList<QTreeWidget*> const trees = page->findChildren<QTreeWidget*>();
    for (QTreeWidget* tree : trees)
    {
        if (tree->topLevelItemCount() > 0)
            tree->setCurrentItem(tree->topLevelItem(static_cast<int>(chance() % tree->topLevelItemCount())));
    }
}

} // namespace

/** What people read is in their language; what the receiver reads is in its own. */
class tst_translations : public melvox_test::pageTest_t
{
    Q_OBJECT

protected:
    void setUp() override;

public slots:
    void hear(melvox_link::message_t const& message);

private:
    static void rows();
    QWidget* build();
    QStringList readIn(QTranslator* translator);
    QStringList operateIn(QTranslator* translator);
    bool isOfTheReceiver(QString const& text) const;

    QTranslator m_german;
    QStringList m_words;

private slots:
    void initTestCase();
    void canTranslateEveryTextThatPeopleRead_data() { rows(); }
    void canTranslateEveryTextThatPeopleRead();
    void canTranslateWhatIsSaidAboutWrongInput_data() { rows(); }
    void canTranslateWhatIsSaidAboutWrongInput();
    void speaksGerman_data() { rows(); }
    void speaksGerman();
    void sendsTheSameInEveryLanguage_data() { rows(); }
    void sendsTheSameInEveryLanguage();
};

void tst_translations::initTestCase()
{
    QVERIFY(m_german.load("melvox_ui_de", MELVOX_TRANSLATIONS));
}

void tst_translations::setUp()
{
    pageTest_t::setUp();
    m_words.clear();
    connect(receiver, SIGNAL(received(melvox_link::message_t)), SLOT(hear(melvox_link::message_t)));
    melvox_test::reportEverything(receiver);
}

void tst_translations::hear(melvox_link::message_t const& message)
{
    collectWords(message.value, m_words);
}

void tst_translations::rows()
{
    QTest::addColumn<int>("index");
    int index = 0;
    for (melvox_test::page_t const& page : PAGES)
    {
        if (page.create)
            QTest::newRow(page.name) << index;
        ++index;
    }
}

QWidget* tst_translations::build()
{
    QFETCH(int, index);
    return PAGES[index].create(device);
}

/** What the receiver told, and words that it has for more than it told. */
bool tst_translations::isOfTheReceiver(QString const& text) const
{
    static QRegularExpression const MESSAGE_NAME("^(NMEA|PVT|RTCM|NAK)[A-Z0-9]*$");
    static QRegularExpression const SATELLITE_FLAGS("^[UAC](,[UAC])*$");
    static QStringList const WORDS = {"AUTO", "NONE", "DEFAULT"};
    QStringList const parts = text.split(": "); // a component and its version
    return m_words.contains(text.trimmed()) || (parts.size() == 2 && m_words.contains(parts[0])) ||
           text.contains(MESSAGE_NAME) || text.contains(SATELLITE_FLAGS) || WORDS.contains(text);
}

QStringList tst_translations::readIn(QTranslator* translator)
{
    language_t const language(translator);
    QScopedPointer<QWidget> const page(build());
    press(page.data(), "reset");
    return textsOfAll(page.data());
}

void tst_translations::canTranslateEveryTextThatPeopleRead()
{
    marker_t marker(&m_german);
    QStringList const texts = readIn(&marker);
    QVERIFY(!texts.isEmpty());
    QStringList fixed;
    for (QString const& text : texts)
    {
        if (!text.contains(MARK) && hasLetters(text) && !isOfTheReceiver(text) && !isOfThePlatform(text))
            fixed << text;
    }
    fixed.removeDuplicates();
    QVERIFY2(fixed.isEmpty(), qPrintable("never translated: " + fixed.join(" | ")));
    QVERIFY2(marker.missing().isEmpty(), qPrintable("not in German: " + marker.missing().join(", ")));
}

void tst_translations::canTranslateWhatIsSaidAboutWrongInput()
{
    marker_t marker(&m_german);
    language_t const language(&marker);
    QScopedPointer<QWidget> const page(build());
    QList<QLineEdit*> const edits = page->findChildren<QLineEdit*>();
    for (QLineEdit* edit : edits)
    {
        if (edit->isEnabled())
            edit->setText("99999999999");
    }
    press(page.data(), "submit");
    QString const errors = reportedErrors();
    if (COMPLAINING.contains(QTest::currentDataTag()))
        QVERIFY(!errors.isEmpty());
    QStringList const lines = errors.split('\n');
    for (QString const& line : lines)
        QVERIFY2(line.isEmpty() || line.contains(MARK), qPrintable(line));
    QVERIFY2(marker.missing().isEmpty(), qPrintable("not in German: " + marker.missing().join(", ")));
}

void tst_translations::speaksGerman()
{
    QStringList const english = readIn(0);
    QStringList const german = readIn(&m_german);
    QCOMPARE(german.size(), english.size());
    QVERIFY(german != english);
}

QStringList tst_translations::operateIn(QTranslator* translator)
{
    int const ROUNDS = 40;
    std::mt19937 chance; // the same choices in every language
    language_t const language(translator);
    QScopedPointer<QWidget> const page(build());
    press(page.data(), "reset");
    receiver->clear();
    for (int round = 0; round < ROUNDS; ++round)
    {
        choose(page.data(), chance);
        press(page.data(), "submit");
        QList<QPushButton*> const buttons = page->findChildren<QPushButton*>();
        for (QPushButton* button : buttons)
        {
            if (button->isEnabled() && button->isVisibleTo(page.data()))
                button->click();
            answerBoxes();
        }
        melvox_test::settle();
    }
    answerBoxes();
    return receiver->sent();
}

void tst_translations::sendsTheSameInEveryLanguage()
{
    QStringList const english = operateIn(0);
    QCOMPARE(english.isEmpty(), SILENT.contains(QTest::currentDataTag()));
    QCOMPARE(operateIn(&m_german), english);
    marker_t marker(&m_german);
    QCOMPARE(operateIn(&marker), english);
}

QTEST_MAIN(tst_translations)
#include "tst_translations.moc"
