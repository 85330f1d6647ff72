#include "framework/KORServices.h"

namespace {

KORServices*& CurrentSlot() {
    // The process's own table lives for ever: errors may be raised while static objects come and go.
    static KORServices* current = new KORServices;
    return current;
}

}  // namespace

KORServices& KORServices::Current() {
    return *CurrentSlot();
}

KORServicesScope::KORServicesScope(KORServices& services) : outer_(CurrentSlot()) {
    CurrentSlot() = &services;
}

KORServicesScope::~KORServicesScope() {
    CurrentSlot() = outer_;
}
