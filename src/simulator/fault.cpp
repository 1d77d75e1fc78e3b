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

enum class Value { None, Number, OptionalText, Text };
enum class Place { Connection, Anywhere, Operation, OperationWithText, GetVersion, Locator };

struct KindRule {
  FaultKind kind;
  const char* word;
  Value value;
  Place place;
};

constexpr std::array kindRules = {
    KindRule{FaultKind::Refuse, "refuse", Value::None, Place::Connection},
    KindRule{FaultKind::Close, "close", Value::None, Place::Anywhere},
    KindRule{FaultKind::Cut, "cut", Value::None, Place::Anywhere},
    KindRule{FaultKind::Late, "late", Value::Number, Place::Anywhere},
    KindRule{FaultKind::HttpError, "http500", Value::None, Place::Anywhere},
    KindRule{FaultKind::NotXml, "notxml", Value::None, Place::Anywhere},
    KindRule{FaultKind::SoapFault, "soapfault", Value::OptionalText, Place::Operation},
    KindRule{FaultKind::Code, "code", Value::Number, Place::Operation},
    KindRule{FaultKind::Text, "text", Value::Text, Place::OperationWithText},
    KindRule{FaultKind::Version, "version", Value::Number, Place::GetVersion},
    KindRule{FaultKind::ClientVersion, "clientversion", Value::Text, Place::Locator},
    KindRule{FaultKind::BadLocator, "badlocator", Value::None, Place::Locator},
};

const QString anyOperation = u"any"_s;
const QString locatorDownload = u"locator"_s;
const QString versionQuery = u"getVersion"_s;

const KindRule& ruleFor(FaultKind kind) {
  return *std::find_if(kindRules.begin(), kindRules.end(),
                       [kind](const KindRule& rule) { return rule.kind == kind; });
}

bool answersWithText(const QString& operation) {
  bool hasText = false;
  protocol::visitOperation(operation.toStdString(), [&hasText](const auto& found) {
    typename std::remove_cvref_t<decltype(found)>::Response response;
    const protocol::Fields fields = found.fields(response);
    hasText = std::any_of(fields.begin(), fields.end(), [](const protocol::Field& field) {
      return field.type == protocol::FieldType::BorrowedText;
    });
  });
  return hasText;
}

QString problemWithPlace(const Fault& fault) {
  const QString word = QString::fromLatin1(ruleFor(fault.kind).word);
  switch (ruleFor(fault.kind).place) {
    case Place::Connection:
      if (fault.operation != anyOperation) return u"%1 goes with any only"_s.arg(word);
      return {};
    case Place::Operation:
      if (fault.operation == locatorDownload) return u"%1 does not go with locator"_s.arg(word);
      if (fault.kind == FaultKind::Code && fault.operation == versionQuery)
        return u"the answer of getVersion has no code"_s;
      return {};
    case Place::OperationWithText:
      if (fault.operation != anyOperation && !answersWithText(fault.operation))
        return u"the answer of %1 has no text"_s.arg(fault.operation);
      return {};
    case Place::GetVersion:
      if (fault.operation != versionQuery) return u"%1 goes with getVersion only"_s.arg(word);
      return {};
    case Place::Locator:
      if (fault.operation != locatorDownload) return u"%1 goes with locator only"_s.arg(word);
      return {};
    case Place::Anywhere:
      return {};
  }
  return {};
}

// Fills the value of `fault` from what stands behind "="; an absent value has nothing there.
QString readValue(Fault& fault, const KindRule& rule, const std::optional<QString>& value) {
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

QString readKind(Fault& fault, const QString& text) {
  const qsizetype equals = text.indexOf(u'=');
  const QString word = equals < 0 ? text : text.left(equals);
  const auto* rule = std::find_if(kindRules.begin(), kindRules.end(), [&word](const KindRule& candidate) {
    return word == QLatin1String(candidate.word);
  });
  if (rule == kindRules.end()) return u"unknown kind of fault \"%1\""_s.arg(word);
  fault.kind = rule->kind;
  return readValue(fault, *rule, equals < 0 ? std::nullopt : std::optional<QString>(text.mid(equals + 1)));
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

QString problemWith(const Fault& fault) {
  if (fault.operation != anyOperation && fault.operation != locatorDownload &&
      !operationNames().contains(fault.operation))
    return u"unknown operation \"%1\""_s.arg(fault.operation);
  if (fault.kind == FaultKind::Late && fault.number < 0) return u"late needs a time of 0 ms or more"_s;
  return problemWithPlace(fault);
}

QString describe(const Fault& fault) {
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

ParsedFault parseFault(const QString& text) {
  ParsedFault parsed;
  QString rest = text;
  constexpr QLatin1String onceSuffix(":next");
  if (rest.endsWith(onceSuffix)) {
    parsed.fault.once = true;
    rest.chop(onceSuffix.size());
  }
  const qsizetype colon = rest.indexOf(u':');
  if (colon < 0) {
    parsed.problem = u"expected OPERATION:KIND"_s;
    return parsed;
  }
  parsed.fault.operation = rest.left(colon);
  parsed.problem = readKind(parsed.fault, rest.mid(colon + 1));
  if (parsed.problem.isEmpty()) parsed.problem = problemWith(parsed.fault);
  return parsed;
}

}  // namespace parlexo::simulator
