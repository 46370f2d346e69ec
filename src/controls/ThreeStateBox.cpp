#include "controls/ThreeStateBox.h"

CThreeStateBox::CThreeStateBox(QWidget* parent) : QCheckBox(parent) { setTristate(true); }

void CThreeStateBox::nextCheckState() {
    switch (checkState()) {
        case Qt::Unchecked:
            setCheckState(Qt::Checked);
            break;
        case Qt::Checked:
            setCheckState(Qt::PartiallyChecked);
            break;
        case Qt::PartiallyChecked:
            setCheckState(Qt::Unchecked);
            break;
    }
}
