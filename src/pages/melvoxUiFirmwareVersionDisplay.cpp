#include "melvox_ui/melvoxUiFirmwareVersionDisplay.h"

#include "brel_common_qt/remoteMelvoxDevice.h"
#include "support/text8.h"

#include <QScrollBar>
#include <QTextCursor>
#include <QTextEdit>

using namespace brel_common_qt;

namespace brel_common_qt_gui
{

struct MELVOX_UI_HIDDEN melvoxUiFirmwareVersionDisplay_t::privateData_t
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
    QScrollBar* const bar = m_data->textEdit->verticalScrollBar();
    int const place = bar->value();
    m_data->textEdit->clear();
    if (m_data->device->firmwareVersions().empty())
        return;
    QTextCharFormat bold;
    bold.setFontWeight(QFont::Bold);
    QTextCharFormat const normal;
    QTextCursor cursor(m_data->textEdit->document());
    for (melvoxFirmwareVersion_t const& version : m_data->device->firmwareVersions())
    {
        cursor.insertText(fromText8(version.first) + ": ", bold);
        cursor.insertText(fromText8(version.second) + "\n", normal);
    }
    // The box goes where its own cursor is, which the text has pushed to the end; whoever reads stays where he is.
    m_data->textEdit->moveCursor(QTextCursor::Start);
    bar->setValue(place);
}

} // namespace brel_common_qt_gui
