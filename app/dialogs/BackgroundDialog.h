// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QDialog>
#include <QRgb>
#include <QString>

#include <memory>

class Ui_BackgroundDialog;

/// Asks what the cut-out is shown over. The answer is read from the public fields after exec(); without
/// `accepted` there is none.
class BackgroundDialog : public QDialog
{
    Q_OBJECT

public:
    explicit BackgroundDialog(QWidget *parent = nullptr);
    ~BackgroundDialog() override;

    bool accepted = false;           ///< OK was pressed
    bool useColor = true;            ///< the answer is `color`, else `picturePath`
    unsigned int color = 0xFFFFFFFF; ///< ARGB, not premultiplied; 0, transparent, if the text is no number
    QString picturePath;             ///< not checked for holding a picture

protected:
    void changeEvent(QEvent *event) override;

private slots:
    void on_pictureradioButton_clicked();
    void on_colorradioButton_clicked();
    void on_whiteradioButton_clicked();
    void on_transparentradioButton_clicked();
    void on_pushButton_clicked();
    void on_pushButton_2_clicked();
    void on_buttonBox_accepted();

private:
    void enableChoosers(bool colour, bool picture);

    std::unique_ptr<Ui_BackgroundDialog> m_form;
};
