"""Tells the Dispatcher, when asked, which host this client runs on."""

import json
import socket
import sys

import alertor

TEMPLATE_ID = 12
TEMPLATE_NAME = "Host report"

# Command under which the farm's own Dispatcher extension expects the answer.
COMMAND_HOST_REPORT = 1204


def onCustomDispatcherMessageToAlertor(message):
    question = json.loads(message)
    if question.get("ask") != "host":
        return
    answer = {"question": question["number"], "host": socket.gethostname()}
    if not alertor.send(COMMAND_HOST_REPORT, json.dumps(answer).encode(), TEMPLATE_ID):
        print("Host report: no link to the Dispatcher", file=sys.stderr)
