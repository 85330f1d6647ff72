#pragma once

#include <initializer_list>
#include <optional>
#include <string>
#include <vector>

#include "interfaces/KORISpecAttrAccess.h"

// A test's own look at a feature, by attribute names. None of it shows in a store's log, and no fault hits
// it. Naming an attribute that the feature lacks fails the running test.

/// Handles of the feature's own interfaces.
KORISpecAttrAccess_var Access(KORISpecObject* feature);
KORISpecAttrAccess_var Access(const KORISpecObject_var& feature);

void SetFlag(const KORISpecObject_var& feature, const char* name, bool value);
bool GetFlag(const KORISpecObject_var& feature, const char* name);
void SetNumber(const KORISpecObject_var& feature, const char* name, double value);
double GetNumber(const KORISpecObject_var& feature, const char* name);
void SetWhole(const KORISpecObject_var& feature, const char* name, int value);
int GetWhole(const KORISpecObject_var& feature, const char* name);
void SetText(const KORISpecObject_var& feature, const char* name, const KORUnicodeString& value);
std::string GetText(const KORISpecObject_var& feature, const char* name);

void SetList(const KORISpecObject_var& feature, const char* name, const std::vector<double>& values);
std::optional<std::vector<double>> List(const KORISpecObject_var& feature,
                                        const char* name);  ///< nullopt: never valued

/// References the child from a component attribute of the parent.
void Attach(const KORISpecObject_var& parent, const char* name, const KORISpecObject_var& child);
KORISpecObject_var Component(const KORISpecObject_var& feature, const char* name);  ///< null when unset

void AppendComponent(const KORISpecObject_var& feature, const char* name, const KORISpecObject_var& entry);
std::optional<std::vector<KORISpecObject_var>> Components(const KORISpecObject_var& feature,
                                                          const char* name);  ///< nullopt: never valued

/// References there are on the feature, all told: handles, containers, other features, extensions.
long References(const KORISpecObject_var& feature);

KORRawColldouble ListOf(std::initializer_list<double> values);
std::vector<double> Values(const KORRawColldouble& list);
