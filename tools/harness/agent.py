"""The talk with the agent inside the program: one JSON object a line, asked and answered."""

import json
import socket


class AgentError(AssertionError):
    """The agent could not do what it was asked; the text says why."""


class ProgramEnded(AssertionError):
    """The program is no longer there."""


class Agent:
    def __init__(self, port):
        self._socket = socket.create_connection(("127.0.0.1", port), timeout=60)
        self._stream = self._socket.makefile("rwb")

    def ask(self, what, **arguments):
        request = json.dumps({"do": what, **arguments})
        try:
            self._stream.write(request.encode("utf-8") + b"\n")
            self._stream.flush()
            line = self._stream.readline()
        except OSError as failure:
            raise ProgramEnded(f"the program ended before it answered {what!r}") from failure
        if not line:
            raise ProgramEnded(f"the program ended before it answered {what!r}")
        answer = json.loads(line.decode("utf-8", "surrogatepass"))
        if "error" in answer:
            raise AgentError(f"{what}: {answer['error']}")
        return answer["result"]

    def close(self):
        self._stream.close()
        self._socket.close()
