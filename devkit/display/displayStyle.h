#ifndef MELVOX_DISPLAY_DISPLAY_STYLE_H
#define MELVOX_DISPLAY_DISPLAY_STYLE_H

#include <QProxyStyle>

class QApplication;

namespace melvox_display
{

/** What the style sheet cannot say. */
class displayStyle_t : public QProxyStyle
{
    Q_OBJECT

public:
    displayStyle_t();

    using QProxyStyle::polish;
    void polish(QWidget* widget) override;
    int styleHint(StyleHint hint, QStyleOption const* option, QWidget const* widget,
                  QStyleHintReturn* returnData) const override;
    /** The red that pages show errors in is too light to be read on white; here it is a darker one. */
    void drawItemText(QPainter* painter, QRect const& rect, int flags, QPalette const& palette, bool enabled,
                      QString const& text, QPalette::ColorRole role) const override;
};

/** Style, font, palette and style sheet of the display. */
void applyDisplayStyle(QApplication& application);

} // namespace melvox_display

#endif
