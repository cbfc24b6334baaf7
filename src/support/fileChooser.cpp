#include "support/fileChooser.h"

#include <QApplication>
#include <QDir>
#include <QFileInfo>

namespace brel_common_qt_gui
{

fileChooser_t::fileChooser_t(QFileDialog::AcceptMode mode, QString const& title, QString const& filter, QObject* parent)
    : QObject(parent), m_mode(mode), m_title(title), m_filter(filter)
{
}

fileChooser_t::~fileChooser_t()
{
    delete m_dialog;
}

void fileChooser_t::show()
{
    if (m_dialog && m_dialog->isVisible())
    {
        m_dialog->activateWindow();
        return;
    }
    m_dialog = new QFileDialog(QApplication::activeWindow(), m_title, QDir::currentPath(), m_filter);
    m_dialog->setAttribute(Qt::WA_DeleteOnClose);
    m_dialog->setAcceptMode(m_mode);
    m_dialog->setFileMode(m_mode == QFileDialog::AcceptOpen ? QFileDialog::ExistingFile : QFileDialog::AnyFile);
    // Queued: what follows a choice may open the next dialog, which must not stand over this one.
    connect(m_dialog, SIGNAL(fileSelected(QString)), SLOT(take(QString)), Qt::QueuedConnection);
    m_dialog->open();
}

void fileChooser_t::take(QString const& path)
{
    if (path.isEmpty())
        return;
    QDir::setCurrent(QFileInfo(path).path());
    emit fileSelected(path);
}

} // namespace brel_common_qt_gui
