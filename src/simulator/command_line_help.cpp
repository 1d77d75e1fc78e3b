// SPDX-License-Identifier: GPL-3.0-or-later
#include "protocol/result_code.h"
#include "simulator/command_line.h"

namespace parlexo::simulator {

using namespace Qt::StringLiterals;

namespace {

const char usage[] =
    R"(Usage: parlexo-simulator [OPTION]...

A messaging gateway for trying out and testing the Parlexo client: it answers every operation, delivers
nothing, and prints each message as a person reads it. Start the client with --site and the address that is
printed first.

Options
  --port N                 port to listen on, 0 for a free one (8080)
  --listen ADDRESS         IP address to listen on (127.0.0.1)
  --account USER:PASSWORD[:BALANCE[:nosenderid]]
                           an account; may be given several times (demo:demo1234:100)
  --latency MS             added to every answer (0)
  --upload-rate N          bytes a second that each connection takes in, 0 for no limit (0)
  --session-lifetime MS    idle time after which a session has expired (3600000)
  --delivery-step MS       time from each delivery state to the next (5000)
  --news TEXT              what getNews answers
  --client-version TEXT    the client version that the locator document announces (2.24)
  --protocol-version N     what getVersion answers (103)
  --fault FAULT            a misbehaviour; may be given several times
  --help, --version        print this, or the version, and end

Faults
  OPERATION:KIND[=VALUE][:next]
  OPERATION is the name of an operation, "any" for all of them, or "locator" for the download of the locator
  document. With ":next" only the next call is concerned, otherwise all are. Of several faults that fit a
  call, the first given applies.

  refuse              close the connection before reading from it ("any" only)
  close               carry the operation out, then close without an answer
  cut                 carry the operation out, then close after half of the answer
  late=MS             carry the operation out, answer after MS milliseconds
  http500             answer HTTP status 500; nothing is carried out
  notxml              answer a line of text that is not XML; nothing is carried out
  soapfault[=REASON]  answer a SOAP fault; nothing is carried out
  code=N              answer with error code N; nothing is carried out
  text=TEXT           carry the operation out, answer TEXT in the place of its text
  version=N           wrong protocol version (getVersion only)
  clientversion=TEXT  wrong client version (locator only)
  badlocator          malformed locator document (locator only)

  For example: --fault sendSms:code=12:next --fault any:late=3000 --fault locator:badlocator

What it simulates
  A number that ends in 99, or is not "+" and digits, fails. Every other number has a receipt of its own and
  goes from "Queued at gateway" over "Sent to network" to "Delivered to handset". A message costs, for every
  number, 0.05 for each SMS it takes, 0.25 as MMS, 0.15 as fax, 0.10 as WAP push, 0.30 as voice call.

Error codes
)";

}  // namespace

QString helpText() {
  QString text = QString::fromLatin1(usage);
  for (int number = 0; number <= static_cast<int>(protocol::ResultCode::MessageTooLong); ++number)
    text += u"  %1  %2\n"_s.arg(number, 2).arg(
        QString::fromLatin1(protocol::describe(static_cast<protocol::ResultCode>(number))));
  return text;
}

}  // namespace parlexo::simulator
