#include "formregistry.h"

#include <QTimer>

#include <cxxabi.h>

#include <cstdlib>
#include <map>

namespace zt {

namespace {

// The form classes by name. The program's own forms stand in this namespace and go
// by their bare class names.
std::map<QString, std::type_index>& formTypes() {
    static std::map<QString, std::type_index> types;
    return types;
}

QString nameOf(std::type_index type) {
    int status = 0;
    char* demangled = abi::__cxa_demangle(type.name(), nullptr, nullptr, &status);
    QString name = QString::fromLatin1(status == 0 ? demangled : type.name());
    std::free(demangled);
    const QString ours = QStringLiteral("zt::");
    return name.startsWith(ours) ? name.mid(ours.size()) : name;
}

} // namespace

std::type_index detail::listForm(std::type_index type) {
    formTypes().emplace(nameOf(type), type);
    return type;
}

QStringList formNames() {
    QStringList names;
    for (const auto& entry : formTypes())
        names << entry.first;
    return names;
}

FormRegistry::FormRegistry(Services& services) : m_services(services) {}

FormRegistry::~FormRegistry() {
    m_forms.clear();
    m_unloaded.clear();
}

bool FormRegistry::unload(Form& form) {
    bool cancel = false;
    form.formUnload(cancel);
    if (cancel)
        return false;
    for (auto it = m_forms.begin(); it != m_forms.end(); ++it) {
        if (it->second.get() != &form)
            continue;
        form.hide();
        // The form may be unloading itself from one of its own handlers, which is
        // still running: it is destroyed only once the current event is over.
        m_unloaded.push_back(std::move(it->second));
        m_forms.erase(it);
        QTimer::singleShot(0, this, &FormRegistry::collectUnloaded);
        break;
    }
    return true;
}

bool FormRegistry::unload(const QString& name) {
    const auto type = formTypes().find(name);
    if (type == formTypes().end())
        return true;
    const auto form = m_forms.find(type->second);
    return form == m_forms.end() || unload(*form->second);
}

void FormRegistry::collectUnloaded() {
    m_unloaded.clear();
}

} // namespace zt
