#include "melvox_ui/melvoxUiFirmwareVersionDisplay.h"

#include "brel_common_qt/remoteMelvoxDevice.h"
#include "support/text8.h"

#include <QTextCursor>
#include <QTextEdit>

using namespace brel_common_qt;

namespace brel_common_qt_gui
{

struct melvoxUiFirmwareVersionDisplay_t::privateData_t
{
    remoteMelvoxDevice_t* device;
    QTextEdit* textEdit;
};

melvoxUiFirmwareVersionDisplay_t::melvoxUiFirmwareVersionDisplay_t(remoteMelvoxDevice_t* device, QTextEdit* textEdit,
                                                                   QObject* parent)
    : QObject(parent), m_data(new privateData_t)
{
    m_data->device = device;
    m_data->textEdit = textEdit;
    textEdit->setReadOnly(true);
    connect(device, SIGNAL(firmwareVersionUpdated(std::string const&, std::string const&)), SLOT(updateText()));
    updateText();
}

melvoxUiFirmwareVersionDisplay_t::~melvoxUiFirmwareVersionDisplay_t()
{
    delete m_data;
}

void melvoxUiFirmwareVersionDisplay_t::updateText()
{
    m_data->textEdit->clear();
    QTextCharFormat bold;
    bold.setFontWeight(QFont::Bold);
    QTextCharFormat normal;
    normal.setFontWeight(QFont::Normal);
    // A cursor of its own does not scroll the box away under somebody who reads it.
    QTextCursor cursor(m_data->textEdit->document());
    for (melvoxFirmwareVersion_t const& version : m_data->device->firmwareVersions())
    {
        cursor.insertText(fromText8(version.first) + ": ", bold);
        cursor.insertText(fromText8(version.second) + "\n", normal);
    }
}

} // namespace brel_common_qt_gui
