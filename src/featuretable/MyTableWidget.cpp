#include "MyTableWidget.h"

void MyTableWidget::keyboardSearch(const QString& search)
{
    if (currentColumn() == 0)
        QTableWidget::keyboardSearch(search);
}
