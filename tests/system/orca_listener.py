# Orca runs this when it starts: each utterance goes to a file, a line each, and to no loudspeaker.

import os

import orca.settings
import orca.speech

spoken = open(os.environ["SPOKEN"], "w", buffering=1)
orca.settings.speechFactoryModules = []
orca.speech._speak = lambda text, acss, interrupt: spoken.write(text + "\n")
