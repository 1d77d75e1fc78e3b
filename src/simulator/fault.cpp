// SPDX-License-Identifier: GPL-3.0-or-later
#include "simulator/fault.h"

#include <algorithm>
#include <array>
#include <optional>
#include <type_traits>

#include "protocol/contract.h"

namespace parlexo::simulator {

using namespace Qt::StringLiterals;

namespace {

// The value that a kind of fault needs.
enum class Value { None, Number, OptionalText, Text };
// The operations that a kind of fault applies to.
enum class Scope { Connection, Anywhere, Operation, OperationWithText, GetVersion, Locator };

struct KindRule {
  FaultKind kind;
  const char* word;
  Value value;
  Scope scope;
};

constexpr std::array kindRules = {
    KindRule{FaultKind::Refuse, "refuse", Value::None, Scope::Connection},
    KindRule{FaultKind::Close, "close", Value::None, Scope::Anywhere},
    KindRule{FaultKind::Cut, "cut", Value::None, Scope::Anywhere},
    KindRule{FaultKind::Late, "late", Value::Number, Scope::Anywhere},
    KindRule{FaultKind::HttpError, "http500", Value::None, Scope::Anywhere},
    KindRule{FaultKind::NotXml, "notxml", Value::None, Scope::Anywhere},
    KindRule{FaultKind::SoapFault, "soapfault", Value::OptionalText, Scope::Operation},
    KindRule{FaultKind::Code, "code", Value::Number, Scope::Operation},
    KindRule{FaultKind::Text, "text", Value::Text, Scope::OperationWithText},
    KindRule{FaultKind::Version, "version", Value::Number, Scope::GetVersion},
    KindRule{FaultKind::ClientVersion, "clientversion", Value::Text, Scope::Locator},
    KindRule{FaultKind::BadLocator, "badlocator", Value::None, Scope::Locator},
};

const QString anyOperation = u"any"_s;
const QString locatorDownload = u"locator"_s;
const QString versionQuery = u"getVersion"_s;

const KindRule& ruleFor(FaultKind kind) {
  return *std::find_if(kindRules.begin(), kindRules.end(),
                       [kind](const KindRule& rule) { return rule.kind == kind; });
}

bool hasTextInResponse(const QString& operation) {
  bool hasText = false;
  protocol::visitOperation(operation.toStdString(), [&hasText](const auto& contract) {
    typename std::remove_cvref_t<decltype(contract)>::Response response;
    const protocol::Fields fields = contract.fields(response);
    hasText = std::any_of(fields.begin(), fields.end(), [](const protocol::Field& field) {
      return field.type == protocol::FieldType::BorrowedText;
    });
  });
  return hasText;
}

QString findScopeProblem(const Fault& fault) {
  const QString word = QString::fromLatin1(ruleFor(fault.kind).word);
  switch (ruleFor(fault.kind).scope) {
    case Scope::Connection:
      if (fault.operation != anyOperation) return u"%1 applies to any only"_s.arg(word);
      return {};
    case Scope::Operation:
      if (fault.operation == locatorDownload) return u"%1 does not apply to locator"_s.arg(word);
      if (fault.kind == FaultKind::Code && fault.operation == versionQuery)
        return u"the reply of getVersion has no code"_s;
      return {};
    case Scope::OperationWithText:
      if (fault.operation != anyOperation && !hasTextInResponse(fault.operation))
        return u"the reply of %1 has no text"_s.arg(fault.operation);
      return {};
    case Scope::GetVersion:
      if (fault.operation != versionQuery) return u"%1 applies to getVersion only"_s.arg(word);
      return {};
    case Scope::Locator:
      if (fault.operation != locatorDownload) return u"%1 applies to locator only"_s.arg(word);
      return {};
    case Scope::Anywhere:
      return {};
  }
  return {};
}

// Sets the value of `fault`; nullopt if the text has no "=". Returns what is wrong, or an empty string.
QString setValue(Fault& fault, const KindRule& rule, const std::optional<QString>& value) {
  const QString word = QString::fromLatin1(rule.word);
  switch (rule.value) {
    case Value::None:
      return value ? u"%1 takes no value"_s.arg(word) : QString();
    case Value::Number: {
      bool isNumber = false;
      fault.number = value.value_or(QString()).toInt(&isNumber);
      return isNumber ? QString() : u"%1 needs a number: %1=N"_s.arg(word);
    }
    case Value::OptionalText:
      fault.text = value.value_or(QString());
      return {};
    case Value::Text:
      fault.text = value.value_or(QString());
      return fault.text.isEmpty() ? u"%1 needs a text: %1=TEXT"_s.arg(word) : QString();
  }
  return {};
}

// Parses "KIND[=VALUE]" into `fault`. Returns what is wrong, or an empty string.
QString parseKind(Fault& fault, const QString& text) {
  const qsizetype equals = text.indexOf(u'=');
  const QString word = equals < 0 ? text : text.left(equals);
  const auto* rule = std::find_if(kindRules.begin(), kindRules.end(), [&word](const KindRule& candidate) {
    return word == QLatin1String(candidate.word);
  });
  if (rule == kindRules.end()) return u"unknown kind of fault \"%1\""_s.arg(word);
  fault.kind = rule->kind;
  return setValue(fault, *rule, equals < 0 ? std::nullopt : std::optional<QString>(text.mid(equals + 1)));
}

}  // namespace

const QStringList& operationNames() {
  static const QStringList names = [] {
    QStringList list;
    protocol::forEachOperation([&list](const auto& operation) {
      list.append(QString::fromLatin1(operation.name.data(), static_cast<qsizetype>(operation.name.size())));
    });
    return list;
  }();
  return names;
}

QString findProblem(const Fault& fault) {
  if (fault.operation != anyOperation && fault.operation != locatorDownload &&
      !operationNames().contains(fault.operation))
    return u"unknown operation \"%1\""_s.arg(fault.operation);
  if (fault.kind == FaultKind::Late && fault.number < 0) return u"late needs a time of 0 ms or more"_s;
  return findScopeProblem(fault);
}

QString toString(const Fault& fault) {
  const KindRule& rule = ruleFor(fault.kind);
  QString word = QString::fromLatin1(rule.word);
  switch (rule.value) {
    case Value::None:
      return word;
    case Value::Number:
      return u"%1=%2"_s.arg(word).arg(fault.number);
    case Value::OptionalText:
    case Value::Text:
      return fault.text.isEmpty() ? word : word + u'=' + fault.text;
  }
  return word;
}

std::variant<Fault, QString> parseFault(const QString& text) {
  Fault fault;
  QString rest = text;
  constexpr QLatin1String onceSuffix(":next");
  if (rest.endsWith(onceSuffix)) {
    fault.once = true;
    rest.chop(onceSuffix.size());
  }
  const qsizetype colon = rest.indexOf(u':');
  if (colon < 0) return u"expected OPERATION:KIND"_s;
  fault.operation = rest.left(colon);
  QString problem = parseKind(fault, rest.mid(colon + 1));
  if (problem.isEmpty()) problem = findProblem(fault);
  if (!problem.isEmpty()) return problem;
  return fault;
}

template <class Applies>
std::optional<Fault> FaultPlan::next(Applies applies) {
  const auto it = std::find_if(faults_.begin(), faults_.end(), applies);
  if (it == faults_.end()) return std::nullopt;
  Fault fault = *it;
  if (fault.once) faults_.erase(it);
  return fault;
}

std::optional<Fault> FaultPlan::nextFor(const QString& operation) {
  return next([&operation](const Fault& fault) {
    if (fault.kind == FaultKind::Refuse) return false;
    if (fault.operation == operation) return true;
    if (fault.operation != anyOperation || operation == locatorDownload) return false;
    // A code or text does not apply to responses without such a field.
    Fault specific = fault;
    specific.operation = operation;
    return findProblem(specific).isEmpty();
  });
}

bool FaultPlan::refusesConnection() {
  return next([](const Fault& fault) { return fault.kind == FaultKind::Refuse; }).has_value();
}

}  // namespace parlexo::simulator
