#include "contrast.h"

#include "support/pageChecks.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QHash>
#include <QHeaderView>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QRadioButton>
#include <QStyle>
#include <QStyleOption>
#include <QTextEdit>
#include <QTreeView>

#include <algorithm>
#include <cmath>

namespace melvox_test
{

namespace
{

double const NORMAL_TEXT = 4.5;
double const LARGE_TEXT = 3.0;
int const LARGE_PIXELS = 24;
int const LARGE_BOLD_PIXELS = 19;
/** Borders stand at the edge of a widget and are no text. */
int const BORDER = 3;

double linear(double channel)
{
    return channel <= 0.03928 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

double luminance(QColor const& color)
{
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

/** A text in a picture. */
struct text_t
{
    QString name;
    QString text;
    QRect place; //!< within the picture
    QFont font;
};

/** Background is what there is most of, ink what is furthest from it: edges of letters are mixed from both. */
double contrastIn(QImage const& picture, QRect const& place)
{
    QHash<QRgb, int> counts;
    QRect const inside = place & picture.rect();
    for (int y = inside.top(); y <= inside.bottom(); ++y)
    {
        for (int x = inside.left(); x <= inside.right(); ++x)
            ++counts[picture.pixel(x, y)];
    }
    QRgb background = 0;
    for (auto it = counts.cbegin(); it != counts.cend(); ++it)
        background = it.value() > counts.value(background) ? it.key() : background;
    double best = 1.0;
    for (auto it = counts.cbegin(); it != counts.cend(); ++it)
        best = std::max(best, contrast(QColor(it.key()), QColor(background)));
    return best;
}

QString textOf(QWidget* widget)
{
    if (QLabel const* label = qobject_cast<QLabel*>(widget))
        return label->text();
    if (QAbstractButton const* button = qobject_cast<QAbstractButton*>(widget))
        return button->text();
    if (QComboBox const* combo = qobject_cast<QComboBox*>(widget))
        return combo->currentText();
    if (QLineEdit const* edit = qobject_cast<QLineEdit*>(widget))
        return edit->displayText();
    if (QGroupBox const* group = qobject_cast<QGroupBox*>(widget))
        return group->title();
    if (QProgressBar const* bar = qobject_cast<QProgressBar*>(widget))
        return bar->isTextVisible() ? bar->text() : QString();
    if (QTextEdit const* edit = qobject_cast<QTextEdit*>(widget))
        return edit->toPlainText();
    return QString();
}

/** Where in the widget its text stands, and nothing else with an edge. */
QRect textPlace(QWidget* widget)
{
    QStyle* const style = widget->style();
    if (qobject_cast<QGroupBox*>(widget))
    {
        QStyleOptionGroupBox option;
        option.initFrom(widget);
        option.text = textOf(widget);
        option.subControls = QStyle::SC_GroupBoxLabel;
        return style->subControlRect(QStyle::CC_GroupBox, &option, QStyle::SC_GroupBoxLabel, widget);
    }
    if (qobject_cast<QComboBox*>(widget))
    {
        QStyleOptionComboBox option;
        option.initFrom(widget);
        option.subControls = QStyle::SC_All;
        return style->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, widget);
    }
    if (qobject_cast<QCheckBox*>(widget) || qobject_cast<QRadioButton*>(widget))
    {
        QStyleOptionButton option;
        option.initFrom(widget);
        bool const check = qobject_cast<QCheckBox*>(widget);
        return style->subElementRect(check ? QStyle::SE_CheckBoxContents : QStyle::SE_RadioButtonContents, &option,
                                     widget);
    }
    return widget->rect().adjusted(BORDER, BORDER, -BORDER, -BORDER);
}

bool isOnlyBlank(QString const& text)
{
    // The points and colons of an empty mask do not count.
    return std::none_of(text.begin(), text.end(), [](QChar c) { return c.isLetterOrNumber(); });
}

QList<text_t> cellTexts(QTreeView* tree, QWidget* root)
{
    QList<text_t> texts;
    QPoint const origin = tree->viewport()->mapTo(root, QPoint());
    QAbstractItemModel* const model = tree->model();
    for (QModelIndex index = model->index(0, 0); index.isValid(); index = tree->indexBelow(index))
    {
        for (int column = 0; column < model->columnCount(); ++column)
        {
            QModelIndex const cell = index.sibling(index.row(), column);
            QRect const place = tree->visualRect(cell) & tree->viewport()->rect();
            if (cell.flags().testFlag(Qt::ItemIsEnabled) && place == tree->visualRect(cell))
                texts << text_t{nameOf(tree), cell.data().toString(), place.translated(origin), tree->font()};
        }
    }
    QHeaderView* const header = tree->header();
    for (int column = 0; column < model->columnCount() && !header->isHidden(); ++column)
    {
        QRect const place(header->sectionViewportPosition(column), 0, header->sectionSize(column), header->height());
        if (!header->viewport()->rect().contains(place))
            continue;
        texts << text_t{
            "the header of " + nameOf(tree), model->headerData(column, Qt::Horizontal).toString(),
            place.adjusted(BORDER, BORDER, -BORDER, -BORDER).translated(header->viewport()->mapTo(root, QPoint())),
            header->font()};
    }
    return texts;
}

QList<text_t> textsIn(QWidget* root)
{
    QList<text_t> texts;
    for (QWidget* widget : root->findChildren<QWidget*>())
    {
        if (!widget->isVisible() || !widget->isEnabled() || widget->window() != root->window() || isInner(widget))
            continue;
        if (QTreeView* tree = qobject_cast<QTreeView*>(widget))
            texts << cellTexts(tree, root);
        bool const inSight = widget->visibleRegion().boundingRect() == widget->rect();
        if (inSight)
            texts << text_t{nameOf(widget), textOf(widget), textPlace(widget).translated(widget->mapTo(root, QPoint())),
                            widget->font()};
    }
    return texts;
}

bool isLarge(QFont const& font)
{
    int const pixels = QFontInfo(font).pixelSize();
    return pixels >= (font.bold() ? LARGE_BOLD_PIXELS : LARGE_PIXELS);
}

} // namespace

double contrast(QColor const& one, QColor const& other)
{
    double const a = luminance(one);
    double const b = luminance(other);
    return (std::max(a, b) + 0.05) / (std::min(a, b) + 0.05);
}

QStringList hardToRead(QWidget* root)
{
    QStringList faults;
    QImage const picture = root->grab().toImage().convertToFormat(QImage::Format_RGB32);
    for (text_t const& text : textsIn(root))
    {
        if (isOnlyBlank(text.text))
            continue;
        double const measured = contrastIn(picture, text.place);
        if (measured < (isLarge(text.font) ? LARGE_TEXT : NORMAL_TEXT))
            faults << QString("%1, \"%2\", has a contrast of %3").arg(text.name, text.text).arg(measured, 0, 'f', 1);
    }
    return faults;
}

} // namespace melvox_test
