#include "brel_common_qt/remoteMelvoxDevice.h"
#include "display/profileComparePage.h"
#include "display/unit.h"
#include "melvox_ui/melvoxUiSolutionControl.h"
#include "receiver/profileText.h"
#include "support/dialogs.h"
#include "support/folder.h"
#include "support/operator.h"
#include "support/test.h"

#include <QProcess>

#include <memory>

using namespace melvox_display;
using melvox_test::labelText;
using melvox_test::waitFor;

namespace
{

/** The receiver as a program of its own. */
class program_t
{
public:
    explicit program_t(QStringList const& arguments) { m_process.start(MELVOX_RECEIVER_PROGRAM, arguments); }
    ~program_t()
    {
        m_process.kill();
        m_process.waitForFinished();
    }

    /** Where it listens, such as "tcp:127.0.0.1:5000"; empty when it did not come up. */
    QString place()
    {
        waitFor(
            [this]()
            {
                m_output += m_process.readAllStandardOutput();
                return m_output.contains('\n') || m_process.state() == QProcess::NotRunning;
            },
            20000);
        return QString::fromUtf8(m_output).section('\n', 0, 0).section("listening on ", 1);
    }

private:
    QProcess m_process;
    QByteArray m_output;
};

connection_t connectionTo(QString const& place)
{
    connection_t connection;
    if (place.startsWith("tcp:"))
    {
        connection.kind = connection_t::TCP;
        connection.host = place.section(':', 1, 1);
        connection.port = place.section(':', 2, 2).toInt();
    }
    else
    {
        connection.kind = connection_t::SERIAL;
        connection.device = place.section(':', 1);
    }
    return connection;
}

} // namespace

/** The whole way from the operator to a receiver in another process and back. */
class tst_twoProcesses : public melvox_test::test_t
{
    Q_OBJECT

private slots:
    void aSettingGoesToTheReceiverAndItsAnswerComesBack_data();
    void aSettingGoesToTheReceiverAndItsAnswerComesBack();
    void aReceiverThatComesBackIsAskedAgain();
    void aProfileIsComparedWithAReceiverElsewhere();
};

void tst_twoProcesses::aSettingGoesToTheReceiverAndItsAnswerComesBack_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::newRow("over TCP") << QStringList{"--tcp", "0"};
    QTest::newRow("over a pseudo-terminal") << QStringList{"--pty"};
}

void tst_twoProcesses::aSettingGoesToTheReceiverAndItsAnswerComesBack()
{
    QFETCH(QStringList, arguments);
    program_t program(arguments);
    QString const place = program.place();
    QVERIFY2(!place.isEmpty(), "the receiver did not start");
    unit_t unit(connectionTo(place));
    brel_common_qt_gui::melvoxUiSolutionControl_t page(unit.device());
    QVERIFY(!melvox_test::isEnabled(&page, "elevationMaskLineEdit"));
    unit.start();
    QVERIFY(waitFor([&]() { return melvox_test::isEnabled(&page, "elevationMaskLineEdit"); }, 20000));

    melvox_test::type(&page, "elevationMaskLineEdit", "23.4");
    melvox_test::tap(&page, "Apply");
    QVERIFY(waitFor([&]() { return labelText(&page, "elevationMaskLabel") == "23.4"; }, 20000));
}

void tst_twoProcesses::aReceiverThatComesBackIsAskedAgain()
{
    auto first = std::make_unique<program_t>(QStringList{"--tcp", "0"});
    QString const place = first->place();
    unit_t unit(connectionTo(place));
    brel_common_qt_gui::melvoxUiSolutionControl_t page(unit.device());
    unit.start();
    QVERIFY(waitFor([&]() { return unit.device()->elevationMaskValid(); }, 20000));
    melvox_test::type(&page, "elevationMaskLineEdit", "31.5");
    melvox_test::tap(&page, "Apply");
    QVERIFY(waitFor([&]() { return labelText(&page, "elevationMaskLabel") == "31.5"; }, 20000));

    first.reset();
    QVERIFY(waitFor([&]() { return unit.linkState() != linkState_t::CONNECTED; }, 20000));
    program_t second({"--tcp", place.section(':', 2, 2)});
    QVERIFY(!second.place().isEmpty());
    // The new one starts from its defaults, so the label tells that it was asked.
    QVERIFY(waitFor([&]() { return labelText(&page, "elevationMaskLabel") == "7.0"; }, 20000));
}

void tst_twoProcesses::aProfileIsComparedWithAReceiverElsewhere()
{
    program_t program({"--tcp", "0"});
    unit_t unit(connectionTo(program.place()));
    profileComparePage_t page(unit.device());
    unit.start();
    QVERIFY(waitFor([&]() { return unit.device()->elevationMaskValid(); }, 20000));
    melvox_test::folder_t const folder;
    melvox_receiver::settings_t settings = melvox_receiver::startSettings();
    settings.insert("elevationMask", 12.5);
    QString const path = folder.write("profile_field.melvox", melvox_receiver::profileText(settings));
    melvox_test::tap(&page, "Choose Profile");
    QVERIFY(waitFor([]() { return melvox_test::openFileDialog() != nullptr; }));
    melvox_test::chooseFile(path);
    QVERIFY(waitFor([&]() { return labelText(&page, "statusLabel") == "1 setting would change."; }, 20000));
}

QTEST_MAIN(tst_twoProcesses)
#include "tst_twoProcesses.moc"
