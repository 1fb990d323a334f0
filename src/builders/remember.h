#pragma once

#include <QString>

#include <functional>
#include <vector>

class QCheckBox;
class QComboBox;
class QRadioButton;

namespace zt {

class SettingsStore;
class TextControl;

// "Remember Settings": a dialog's fields kept under a section of the settings store.
// A dialog lists its fields once, key by key, each with the default its restore
// reads, and saves or restores the whole list:
//
//     std::vector<Remembered> fields{remembered("Width", "", ui.txtWidth), ...};
//     section.save(fields);      // on accept, after the fragment is delivered
//     section.restore(fields);   // in the load, when the dialog's own test says so
struct Remembered {
    QString key;
    QString defaultValue;
    std::function<QString()> value;
    std::function<void(const QString&)> restore;
};

// A text box: its text as it is.
Remembered remembered(const QString& key, const QString& defaultValue, TextControl& field);
// A check box: its value "0" or "1" (see setCheckValue for the restore).
Remembered remembered(const QString& key, const QString& defaultValue, QCheckBox* box);
// A combo box: its text; restored as the text, in the list or not.
Remembered remembered(const QString& key, const QString& defaultValue, QComboBox* combo);
// An option button: "true" or "false", read back by asBoolean.
Remembered remembered(const QString& key, const QString& defaultValue, QRadioButton* option);

// One dialog's section, under the program's application name.
class SettingsSection {
public:
    SettingsSection(SettingsStore& store, QString section);

    QString get(const QString& key, const QString& defaultValue) const;
    void save(const QString& key, const QString& value);

    void save(const std::vector<Remembered>& fields);
    void restore(const std::vector<Remembered>& fields);

private:
    SettingsStore& m_store;
    QString m_section;
};

// A check box's value as the program counts it: 0 clear, 1 ticked, 2 greyed.
int checkValue(const QCheckBox* box);
// Sets it from a number as text. A text that is not a number fails with 13, a number
// other than 0, 1 or 2 with 380, as the check box refuses it.
void setCheckValue(QCheckBox* box, const QString& value);

// Switching an option on switches the others of its group off; switching it off
// leaves the group with none on, as the program's option buttons allow.
void setOptionValue(QRadioButton* option, bool on);

// A stored truth value: "true"/"false" in any case, or a number that is not 0.
// Anything else fails with 13.
bool asBoolean(const QString& text);

} // namespace zt
