#pragma once

#include "form.h"

#include <QObject>
#include <QStringList>

#include <memory>
#include <typeindex>
#include <unordered_map>
#include <vector>

namespace zt {

struct Services;

namespace detail {
// Enters a form class in the list of formNames(); returns type.
std::type_index listForm(std::type_index type);
// Every form class that get<F>() is used with anywhere in the program is listed
// when the program starts.
template <class F> inline const std::type_index kFormType = listForm(typeid(F));
} // namespace detail

// The name of every form class of the program that code can load, in no order. A
// form's name is its class name.
QStringList formNames();

// Owns the single instance of every form. Asking for a form loads it on first touch
// (hidden, its load step run); unloading forgets it, so the next touch gives a fresh
// one with its design defaults. Forms reach each other through here.
class FormRegistry : public QObject {
public:
    explicit FormRegistry(Services& services);
    ~FormRegistry() override;

    Services& services() const { return m_services; }

    template <class F> F& get() {
        const std::type_index key = detail::kFormType<F>;
        if (auto it = m_forms.find(key); it != m_forms.end())
            return static_cast<F&>(*it->second);
        auto made = std::make_unique<F>(*this);
        F& form = *made;
        // Listed before its load step runs, so that the step may touch its own form.
        m_forms.emplace(key, std::move(made));
        form.load();
        return form;
    }

    template <class F> bool isLoaded() const { return m_forms.count(std::type_index(typeid(F))); }

    // Unloads F when it is loaded. Returns false when its unload step cancelled.
    template <class F> bool unload() {
        auto it = m_forms.find(std::type_index(typeid(F)));
        return it == m_forms.end() || unload(*it->second);
    }
    bool unload(Form& form);
    // Unloads the form of that name when it is loaded; false when its unload step
    // cancelled.
    bool unload(const QString& name);

    // Destroys the forms unloaded so far. Runs by itself once the current event is
    // over; tests may call it directly.
    void collectUnloaded();

private:
    Services& m_services;
    std::unordered_map<std::type_index, std::unique_ptr<Form>> m_forms;
    std::vector<std::unique_ptr<Form>> m_unloaded;
};

} // namespace zt
