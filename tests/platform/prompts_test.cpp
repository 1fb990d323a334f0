#include "platform/qtservices.h"

#include <QAbstractButton>
#include <QApplication>
#include <QMessageBox>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

using namespace zt;

// The real message box, driven as a user would: Escape, then the frame's close
// button, then No when the box is still up.
TEST(MessageBox, YesNoQuestionsWaitForAnAnswerAndEveryBoxComesInFront) {
    const struct {
        int style;
        bool staysUp;
        int answer;
    } cases[] = {
        {vbYesNo | vbQuestion, true, vbNo},
        {vbYesNo | vbQuestion | vbDefaultButton2, true, vbNo},
        {vbYesNoCancel | vbQuestion, false, vbCancel},
        {vbOKOnly | vbCritical, false, vbOK},
    };
    // A top-most window of the program is up, as the Start Up Assistant is.
    QWidget assistant(nullptr, Qt::WindowStaysOnTopHint);
    assistant.show();
    for (const auto& c : cases) {
        SCOPED_TRACE(c.style);
        bool staysUp = false;
        bool inFront = false;
        QTimer::singleShot(0, [&] {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            ASSERT_NE(box, nullptr);
            inFront = (box->windowFlags() & Qt::WindowStaysOnTopHint) &&
                      box->windowModality() == Qt::ApplicationModal;
            QTest::keyClick(box, Qt::Key_Escape);
            box->close();
            staysUp = box->isVisible();
            if (staysUp)
                box->button(QMessageBox::No)->click();
        });
        EXPECT_EQ(QtPrompts().msgBox(QStringLiteral("Save file now?"), c.style,
                                     QStringLiteral("Assistant: Zelvo")),
                  c.answer);
        EXPECT_EQ(staysUp, c.staysUp);
        EXPECT_TRUE(inFront);
    }
}
