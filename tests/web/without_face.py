"""The game without a face, told what to do line by line."""
import subprocess


class WithoutFace:
    def __init__(self, program):
        self.process = subprocess.Popen([program], stdin=subprocess.PIPE, stdout=subprocess.PIPE, text=True, encoding="utf-8")

    def tell(self, line):
        self.process.stdin.write(line + "\n")

    def ask(self, line):
        self.tell(line)
        self.process.stdin.flush()
        answer = self.process.stdout.readline()
        if not answer:
            raise RuntimeError(f"the game without a face has died of: {line}")
        return answer.rstrip("\n")

    def see(self, line):
        """Does it; answers the set of all lines that can be seen then, or the one that tells of the end."""
        return set(filter(None, self.ask(line).split("\t")))

    def files(self):
        pairs = (field.split(":") for field in self.ask("files").split("\t") if field)
        return {name: bytes.fromhex(digits) for name, digits in pairs}

    def close(self):
        self.process.stdin.close()
        self.process.stdout.close()
        self.process.wait()
