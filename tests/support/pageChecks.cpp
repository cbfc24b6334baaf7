#include "support/pageChecks.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractScrollArea>
#include <QAbstractSpinBox>
#include <QComboBox>
#include <QFontMetrics>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QScrollArea>
#include <QScrollBar>
#include <QStyle>
#include <QStyleOption>
#include <QTextEdit>
#include <QTreeView>

namespace melvox_test
{

namespace
{

/** QLineEdit keeps this much free on both sides of its text, and one pixel for the cursor. */
int const EDIT_MARGIN = 2;
int const CURSOR_WIDTH = 1;

int textWidth(QFontMetrics const& metrics, QString const& text)
{
#if QT_VERSION < QT_VERSION_CHECK(5, 11, 0)
    return metrics.width(text);
#else
    return metrics.horizontalAdvance(text);
#endif
}

QList<QWidget*> shown(QWidget* root)
{
    QList<QWidget*> widgets;
    QList<QWidget*> const all = root->findChildren<QWidget*>();
    for (QWidget* widget : all)
    {
        if (widget->isVisible() && widget->window() == root->window() && !isInner(widget))
            widgets << widget;
    }
    return widgets;
}

bool isBuddy(QWidget* root, QWidget const* editor)
{
    QList<QLabel*> const labels = root->findChildren<QLabel*>();
    for (QLabel const* label : labels)
    {
        if (label->buddy() == editor)
            return true;
    }
    return false;
}

/** For what a style sheet makes narrower than its text: a `min-width` there counts for more than what a widget asks
 *  for itself. */
QString lacking(QWidget const* widget, int needed, int given)
{
    return needed > given ? QString("%1 needs %2 px and has %3").arg(nameOf(widget)).arg(needed).arg(given) : QString();
}

QString cutOffLabel(QLabel const* label)
{
    if (!label->wordWrap())
    {
        QString const across = lacking(label, label->sizeHint().width(), label->width());
        return across.isEmpty() ? lacking(label, label->sizeHint().height(), label->height()) : across;
    }
    // This is how wide its longest word is.
    QString const across = lacking(label, label->minimumSizeHint().width(), label->width());
    return across.isEmpty() ? lacking(label, label->heightForWidth(label->width()), label->height()) : across;
}

QString cutOffButton(QAbstractButton const* button)
{
    QString const across = lacking(button, button->sizeHint().width(), button->width());
    return across.isEmpty() ? lacking(button, button->sizeHint().height(), button->height()) : across;
}

QString cutOffCombo(QComboBox const* combo)
{
    int needed = 0;
    for (int i = 0; i < combo->count(); ++i)
        needed = qMax(needed, textWidth(combo->fontMetrics(), combo->itemText(i)));
    QStyleOptionComboBox option;
    option.initFrom(combo);
    option.editable = combo->isEditable();
    option.subControls = QStyle::SC_All;
    QRect const field =
        combo->style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, combo);
    return lacking(combo, needed, field.width());
}

QString cutOffEdit(QLineEdit const* edit)
{
    QStyleOptionFrame option;
    option.initFrom(edit);
    option.rect = edit->contentsRect();
    option.lineWidth = edit->hasFrame() ? edit->style()->pixelMetric(QStyle::PM_DefaultFrameWidth, &option, edit) : 0;
    QRect const field = edit->style()->subElementRect(QStyle::SE_LineEditContents, &option, edit);
    int const needed = textWidth(edit->fontMetrics(), longestText(edit)) + 2 * EDIT_MARGIN + CURSOR_WIDTH;
    return lacking(edit, needed, field.width());
}

QString cutOffGroup(QGroupBox const* group)
{
    return lacking(group, group->minimumSizeHint().width(), group->width());
}

QString cutOffProgress(QProgressBar const* bar)
{
    return bar->isTextVisible() ? lacking(bar, textWidth(bar->fontMetrics(), bar->text()), bar->width()) : QString();
}

QStringList cutOffHeader(QTreeView const* tree)
{
    QStringList faults;
    QHeaderView const* const header = tree->header();
    for (int column = 0; column < header->count(); ++column)
    {
        QString const text = header->model()->headerData(column, Qt::Horizontal).toString();
        if (!header->isHidden() && header->sectionSize(column) < header->sectionSizeHint(column))
            faults << QString("%1, header \"%2\", needs %3 px and has %4")
                          .arg(nameOf(tree), text)
                          .arg(header->sectionSizeHint(column))
                          .arg(header->sectionSize(column));
    }
    return faults;
}

QStringList cutOffCells(QTreeView* tree)
{
    QStringList faults;
    QAbstractItemModel* const model = tree->model();
    for (QModelIndex index = model->index(0, 0); index.isValid(); index = tree->indexBelow(index))
    {
        for (int column = 0; column < model->columnCount(); ++column)
        {
            QModelIndex const cell = index.sibling(index.row(), column);
            int const needed = tree->sizeHintForIndex(cell).width();
            if (!tree->isColumnHidden(column) && tree->visualRect(cell).width() < needed)
                faults << QString("%1, \"%2\", needs %3 px and has %4")
                              .arg(nameOf(tree), cell.data().toString())
                              .arg(needed)
                              .arg(tree->visualRect(cell).width());
        }
    }
    return faults;
}

QStringList cutOffText(QWidget* widget)
{
    if (QLabel const* label = qobject_cast<QLabel*>(widget))
        return QStringList(cutOffLabel(label));
    if (QAbstractButton const* button = qobject_cast<QAbstractButton*>(widget))
        return QStringList(cutOffButton(button));
    if (QComboBox const* combo = qobject_cast<QComboBox*>(widget))
        return QStringList(cutOffCombo(combo));
    if (QLineEdit const* edit = qobject_cast<QLineEdit*>(widget))
        return QStringList(cutOffEdit(edit));
    if (QGroupBox const* group = qobject_cast<QGroupBox*>(widget))
        return QStringList(cutOffGroup(group));
    if (QProgressBar const* bar = qobject_cast<QProgressBar*>(widget))
        return QStringList(cutOffProgress(bar));
    if (QTreeView* tree = qobject_cast<QTreeView*>(widget))
        return cutOffHeader(tree) + cutOffCells(tree);
    return QStringList();
}

/** What a page is made of, not what only holds it together. */
bool isContent(QWidget const* widget)
{
    return isEditor(widget) || qobject_cast<QLabel const*>(widget) || qobject_cast<QGroupBox const*>(widget) ||
           qobject_cast<QProgressBar const*>(widget) || qobject_cast<QAbstractItemView const*>(widget) ||
           qobject_cast<QTextEdit const*>(widget);
}

QStringList lowRows(QTreeView const* tree)
{
    QStringList faults;
    QModelIndex const first = tree->model()->index(0, 0);
    if (first.isValid() && tree->visualRect(first).height() < TOUCH_HEIGHT)
        faults << QString("a row of %1 is %2 high").arg(nameOf(tree)).arg(tree->visualRect(first).height());
    if (!tree->header()->isHidden() && tree->header()->height() < TOUCH_HEIGHT)
        faults << QString("the header of %1 is %2 high").arg(nameOf(tree)).arg(tree->header()->height());
    return faults;
}

/** True when all columns could be seen at once. */
bool columnsFit(QTreeView* tree)
{
    int needed = 0;
    for (int column = 0; column < tree->header()->count(); ++column)
    {
        int const cells = static_cast<QAbstractItemView*>(tree)->sizeHintForColumn(column);
        needed += tree->isColumnHidden(column) ? 0 : qMax(tree->header()->sectionSizeHint(column), cells);
    }
    return needed <= tree->viewport()->width();
}

QChar widestOf(QChar maskClass)
{
    switch (maskClass.toLower().unicode())
    {
    case 'a':
    case 'n':
    case 'x':
        return 'W';
    case '9':
    case '0':
    case 'd':
    case '#':
        return '8';
    case 'b':
        return '0';
    case 'h':
        return 'D';
    default:
        return maskClass;
    }
}

} // namespace

bool isEditor(QWidget const* widget)
{
    return qobject_cast<QLineEdit const*>(widget) || qobject_cast<QComboBox const*>(widget) ||
           qobject_cast<QAbstractButton const*>(widget);
}

bool isInner(QWidget const* widget)
{
    QWidget const* const parent = widget->parentWidget();
    bool const boxText = widget->objectName() == "qt_msgbox_label";
    return (widget->objectName().startsWith("qt_") && !boxText) || qobject_cast<QComboBox const*>(parent) ||
           qobject_cast<QAbstractSpinBox const*>(parent) || qobject_cast<QAbstractItemView const*>(parent) ||
           qobject_cast<QLineEdit const*>(parent) || qobject_cast<QScrollBar const*>(widget);
}

QString nameOf(QWidget const* widget)
{
    if (!widget->objectName().isEmpty() && widget->objectName() != "qt_msgbox_label")
        return widget->objectName();
    if (QAbstractButton const* button = qobject_cast<QAbstractButton const*>(widget))
        return QString("the button \"%1\"").arg(button->text());
    if (QLabel const* label = qobject_cast<QLabel const*>(widget))
        return QString("the label \"%1\"").arg(label->text());
    return QString("a %1").arg(widget->metaObject()->className());
}

QStringList namelessWidgets(QWidget* root)
{
    QStringList faults;
    QList<QWidget*> const all = root->findChildren<QWidget*>();
    for (QWidget* widget : all)
    {
        bool const needsName = isEditor(widget) || qobject_cast<QAbstractItemView*>(widget) ||
                               qobject_cast<QTextEdit*>(widget) || qobject_cast<QProgressBar*>(widget);
        if (!needsName || isInner(widget) || widget->window() != root->window())
            continue;
        QAbstractButton const* const button = qobject_cast<QAbstractButton*>(widget);
        bool const named =
            !widget->accessibleName().isEmpty() || (button && !button->text().isEmpty()) || isBuddy(root, widget);
        if (!named)
            faults << nameOf(widget);
    }
    return faults;
}

QStringList tooLowForFingers(QWidget* root)
{
    QStringList faults;
    QList<QWidget*> const widgets = shown(root);
    for (QWidget* widget : widgets)
    {
        if (isEditor(widget) && widget->height() < TOUCH_HEIGHT)
            faults << QString("%1 is %2 high").arg(nameOf(widget)).arg(widget->height());
        if (QTreeView const* tree = qobject_cast<QTreeView*>(widget))
            faults << lowRows(tree);
    }
    return faults;
}

QStringList cutOff(QWidget* root)
{
    QStringList faults;
    QList<QWidget*> const widgets = shown(root);
    for (QWidget* widget : widgets)
    {
        faults << cutOffText(widget);
        if (isContent(widget) && !widget->parentWidget()->contentsRect().contains(widget->geometry()))
            faults << nameOf(widget) + " stands out of " + nameOf(widget->parentWidget());
    }
    faults.removeAll(QString());
    return faults;
}

QStringList tooShort(QWidget* root, int rows)
{
    QStringList faults;
    QList<QWidget*> const widgets = shown(root);
    for (QWidget* widget : widgets)
    {
        QTreeView const* const tree = qobject_cast<QTreeView*>(widget);
        int const wanted = tree ? qMin(rows, tree->model()->rowCount()) : 0;
        if (wanted > 0 && tree->viewport()->height() < wanted * tree->visualRect(tree->model()->index(0, 0)).height())
            faults << QString("%1 has no room for %2 rows").arg(nameOf(tree)).arg(wanted);
    }
    return faults;
}

QStringList overlapping(QWidget* root)
{
    QStringList faults;
    QList<QWidget*> const widgets = shown(root);
    for (int i = 0; i < widgets.size(); ++i)
    {
        for (int k = i + 1; k < widgets.size(); ++k)
        {
            bool const neighbours = widgets.at(i)->parentWidget() == widgets.at(k)->parentWidget() &&
                                    isContent(widgets.at(i)) && isContent(widgets.at(k));
            if (neighbours && widgets.at(i)->geometry().intersects(widgets.at(k)->geometry()))
                faults << nameOf(widgets.at(i)) + " and " + nameOf(widgets.at(k)) + " overlap";
        }
    }
    return faults;
}

QStringList tooWide(QWidget* root)
{
    QStringList faults;
    QList<QWidget*> const widgets = shown(root);
    for (QWidget* widget : widgets)
    {
        QScrollArea const* const area = qobject_cast<QScrollArea*>(widget);
        int const excess = area && area->widget() ? area->widget()->width() - area->viewport()->width() : 0;
        if (excess > 0)
            faults << QString("%1 is %2 px too narrow for what it shows").arg(nameOf(area)).arg(excess);
        QTreeView* const tree = qobject_cast<QTreeView*>(widget);
        QAbstractScrollArea const* const list = qobject_cast<QAbstractScrollArea*>(widget);
        if (list && list->horizontalScrollBar()->maximum() > 0 && (!tree || columnsFit(tree)))
            faults << QString("%1 need not be scrolled sideways").arg(nameOf(list));
    }
    return faults;
}

QString longestText(QLineEdit const* edit)
{
    QString const mask = edit->inputMask().section(';', 0, 0);
    if (mask.isEmpty())
        return edit->displayText();
    QString text;
    for (int i = 0; i < mask.size(); ++i)
    {
        bool const literal = mask.at(i) == '\\' && i + 1 < mask.size();
        if (literal)
            text += mask.at(++i);
        else if (!QString("<>!").contains(mask.at(i)))
            text += widestOf(mask.at(i));
    }
    return text;
}

} // namespace melvox_test
