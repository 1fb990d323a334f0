#include "formregistry.h"

#include <QTimer>

namespace zt {

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

void FormRegistry::collectUnloaded() {
    m_unloaded.clear();
}

} // namespace zt
