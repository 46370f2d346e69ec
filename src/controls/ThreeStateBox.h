#pragma once

// A check box with a middle state, stepped by clicks in the order off, on,
// middle, off. A page that gives the middle state no meaning turns it off
// whenever a click reaches it, so that clicks go between on and off while
// the control keeps its three-state style.

#include <QCheckBox>

class CThreeStateBox : public QCheckBox {
    Q_OBJECT

public:
    explicit CThreeStateBox(QWidget* parent = nullptr);

protected:
    void nextCheckState() override;
};
