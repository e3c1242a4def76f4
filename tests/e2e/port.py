"""A client of the test port: one program, driven as a person would."""

import json
import os
import pathlib
import subprocess

ROOT = pathlib.Path(__file__).resolve().parent.parent.parent
PROGRAM = pathlib.Path(os.environ.get("VERANOX_PORT", ROOT / "build" / "bin" / "veranox-port"))


class PortError(Exception):
    """What the program answers when a person could not do what was asked."""


class Port:
    def __init__(self, folder, today="2002-04-05", platform="offscreen", environment=None, before=()):
        self.folder = pathlib.Path(folder)
        self.boxes = []
        env = dict(os.environ, QT_QPA_PLATFORM=platform, **(environment or {}))
        command = [*before, str(PROGRAM), "--program", str(self.folder)] + (["--today", today] if today else [])
        self.process = subprocess.Popen(
            command, stdin=subprocess.PIPE, stdout=subprocess.PIPE, env=env, text=True, encoding="utf-8"
        )

    def request(self, verb, **fields):
        """Sends one request; its boxes are kept in `boxes`. Raises PortError if it is refused."""
        self.process.stdin.write(json.dumps({"do": verb, **fields}) + "\n")
        self.process.stdin.flush()
        line = self.process.stdout.readline()
        if not line:
            raise AssertionError(f"the program died at {verb} {fields}: exit code {self.process.wait(10)}")
        answer = json.loads(line)
        self.boxes = answer["boxes"]
        if not answer["ok"]:
            raise PortError(answer["error"])
        return answer

    def __getattr__(self, verb):
        def call(control=None, **fields):
            if control is not None:
                fields["control"] = control
            return self.request(verb, **fields)

        return call

    def text(self, control):
        return self.request("get", control=control)["text"]

    def items(self, control):
        return self.request("get", control=control)["items"]

    def responses(self, rows):
        """Stores responses by their rubric, their text and the letter of what closes them."""
        for rubric, text, closing in rows:
            self.insert(table="OPTIONS", row={"NUMEROS": rubric, "Texte": text, "TERMINAIS": closing})

    def open_dossier(self, surname="dup"):
        """Starts the program and opens the dossier window on a patient."""
        self.start()
        self.click("Form1.Command1")
        self.type("Form4.Text1", text=surname)

    def report(self):
        """What stands in the report editor."""
        return self.text("RicheT.RichTextBox1")

    def titles(self):
        """The titles of the windows by their names."""
        return {form["name"]: form["title"] for form in self.request("forms")["forms"]}

    def said(self):
        """The texts of the boxes that came up during the last request."""
        return [box["text"] for box in self.boxes]

    def shown(self):
        """The names of the windows on screen."""
        return {form["name"] for form in self.request("forms")["forms"] if form["shown"]}

    def end(self):
        """Ends the program and tells its exit code."""
        if self.process.poll() is None:
            try:
                self.request("quit")
            except (BrokenPipeError, AssertionError):
                pass
        self.process.stdin.close()
        self.process.stdout.close()
        return self.process.wait(30)
