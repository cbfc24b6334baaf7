#ifndef MELVOX_DISPLAY_UI_SETTINGS_H
#define MELVOX_DISPLAY_UI_SETTINGS_H

#include "display/options.h"

#include <QByteArray>
#include <QObject>
#include <QString>

#include <memory>
#include <string>

class QWidget;

namespace qdconfig
{
class config_t;
}

namespace melvox_display
{

/** What the display keeps from one start to the next: the last page, units, position format, and what pages want kept.
 *
 *  A page that has the slots saveUiSettings(qdconfig::config_t*,std::string) and
 *  loadUiSettings(qdconfig::config_t*,std::string) and the signal saveUiSettingsNeeded() gets its settings loaded when it
 *  is shown for the first time and saved whenever it asks. */
class uiSettings_t : public QObject
{
    Q_OBJECT

public:
    /** In this file; empty: the user's own for this program. */
    explicit uiSettings_t(QString const& file, QObject* parent = nullptr);
    ~uiSettings_t() override;

    /** Sets units and format for all pages to what is stored, or to what this run was started with, and from then on
     *  stores what the operator changes. */
    void applyPreferences(options_t const& options);

    /** What all pages show now, as the command line says it. */
    static QString unitName();
    static QString formatName();

    /** The file as it is. */
    QByteArray contents() const;

    QString lastPage() const;
    void setLastPage(QString const& name);

    /** Once for each page; `name` keeps the pages' settings apart. */
    void attachPage(QWidget* page, QString const& name);

private slots:
    void saveUnit();
    void saveFormat();
    void savePage();

private:
    QString read(std::string const& key) const;
    void write(std::string const& key, QString const& value);

    QString m_file;
    std::unique_ptr<qdconfig::config_t> m_config;
    bool m_complained;
};

} // namespace melvox_display

#endif
