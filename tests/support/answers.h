// What a user answers to the platform's dialogs: each is given to FormTest::Answer.
#pragma once

#include <functional>
#include <string>

#include <QAbstractButton>
#include <QDialog>
#include <QDialogButtonBox>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>

#include <gtest/gtest.h>

namespace vernacle::test {

using DialogAnswer = std::function<void(QWidget& dialog)>;

// Cancels whatever dialog it is.
inline void Cancel(QWidget& dialog) {
    dynamic_cast<QDialog&>(dialog).reject();
}

// Types the name into a file dialog and accepts it.
inline DialogAnswer TypeFile(const std::string& name) {
    return [name](QWidget& dialog) {
        auto* edit = dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
        if (!edit) {
            ADD_FAILURE() << "no file dialog: " << dialog.metaObject()->className();
            Cancel(dialog);
            return;
        }
        edit->setText(QString::fromStdString(name));
        dynamic_cast<QDialog&>(dialog).accept();
    };
}

// Prints into a PDF file.
inline DialogAnswer PrintTo(const std::string& path) {
    return [path](QWidget& dialog) {
        EXPECT_EQ(dialog.objectName().toStdString(), "PrintDialog");
        auto* edit = dialog.findChild<QLineEdit*>(QStringLiteral("filename"));
        if (!edit) {
            ADD_FAILURE() << "no printer dialog: " << dialog.metaObject()->className();
            Cancel(dialog);
            return;
        }
        edit->setText(QString::fromStdString(path));
        dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok)->click();
    };
}

// Presses a button of a message box.
inline DialogAnswer Press(QMessageBox::StandardButton which) {
    return [which](QWidget& dialog) {
        auto* box = qobject_cast<QMessageBox*>(&dialog);
        if (!box || !box->button(which)) {
            ADD_FAILURE() << "no such message box: " << dialog.metaObject()->className();
            Cancel(dialog);
            return;
        }
        box->button(which)->click();
    };
}

} // namespace vernacle::test
