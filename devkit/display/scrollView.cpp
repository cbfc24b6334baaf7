#include "display/scrollView.h"

#include <QApplication>
#include <QEvent>
#include <QFrame>
#include <QGroupBox>
#include <QScrollArea>
#include <QScroller>
#include <QScrollerProperties>
#include <QStyle>
#include <QVBoxLayout>
#include <QVariant>

namespace melvox_display
{

void scrollByFinger(QAbstractScrollArea* area)
{
    QWidget* viewport = area->viewport();
    if (QScroller::hasScroller(viewport))
        return;
    // The left button: a touch that nobody takes arrives as one, and a mouse on the desk scrolls the same way.
    QScroller::grabGesture(viewport, QScroller::LeftMouseButtonGesture);
    QScroller* scroller = QScroller::scroller(viewport);
    QScrollerProperties properties = scroller->scrollerProperties();
    for (QScrollerProperties::ScrollMetric metric :
         {QScrollerProperties::VerticalOvershootPolicy, QScrollerProperties::HorizontalOvershootPolicy})
        properties.setScrollMetric(metric, QScrollerProperties::OvershootAlwaysOff);
    properties.setScrollMetric(QScrollerProperties::AxisLockThreshold, 0.8);
    properties.setScrollMetric(QScrollerProperties::DragStartDistance, 0.004);
    scroller->setScrollerProperties(properties);
}

void leaveOutMissingTitles(QWidget* content)
{
    for (QGroupBox* group : content->findChildren<QGroupBox*>())
    {
        if (!group->title().isEmpty() || group->property("untitled").toBool())
            continue;
        group->setProperty("untitled", true);
        group->style()->polish(group);
        QEvent change(QEvent::StyleChange);
        QApplication::sendEvent(group, &change);
    }
}

QScrollArea* createScrollView(QWidget* content, QWidget* parent)
{
    QScrollArea* area = new QScrollArea(parent);
    area->setObjectName("pageView");
    area->setFrameShape(QFrame::NoFrame);
    area->setWidgetResizable(true);
    area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    area->setFocusPolicy(Qt::NoFocus);
    QWidget* holder = new QWidget(area);
    holder->setObjectName("pageHolder");
    QVBoxLayout* layout = new QVBoxLayout(holder);
    layout->setContentsMargins(0, 0, 0, 0);
    // Empty: with each change of parent, Qt asks the style sheet again about every widget below.
    area->setWidget(holder);
    layout->addWidget(content);
    leaveOutMissingTitles(content);
    // A tap beside everything leaves the field one was in.
    holder->setFocusPolicy(Qt::ClickFocus);
    area->setFocusProxy(holder);
    scrollByFinger(area);
    return area;
}

} // namespace melvox_display
