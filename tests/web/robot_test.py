#!/usr/bin/env python3
"""Lets a player made of chance play in a real browser; run by tools/checks/web.sh beside the other tests."""
import unittest

import browser
from in_browser import HERE, START, InBrowser


class Robot(InBrowser):
    def play(self, seed, clock, turns, every):
        code = f"return (async (...arguments) => {{ {browser.SEE} {(HERE / 'robot.js').read_text('utf-8')} }})(...arguments);"
        played = self.page.script(code, seed, clock, turns, every)
        self.assertGreater(played["fights"], 0)
        return played

    def test_of_500_turns_shows_what_the_game_without_a_face_shows(self):
        self.lay_lists()
        game = self.without_face()
        game.see("start")
        seed, clock, turns, acts = 1, START, 0, 0
        while turns < 500:
            played = self.play(seed, clock, 50, 25)
            seen = dict(map(tuple, played["seen"]))
            for number, (clock, act) in enumerate(played["acts"]):
                game.tell(f"clock {clock}")
                lines = game.see(act)
                if number in seen:
                    self.assertEqual(set(seen[number]), lines, f"act {number}: {act}")
            self.assertEqual(self.page.files(), game.files())
            seed, clock = played["state"], played["clock"]
            turns += played["fights"]
            acts += len(played["acts"])
        self.assertEqual(self.page.faults(), [])
        print(f"the robot: {turns} turns, {acts} acts")

    # The driver of the browser keeps what it is told, so here the robot tells nothing.
    def test_of_200_turns_leaves_nothing_behind(self):
        self.lay_lists()
        seed, clock, used = 7, START, []
        for _ in range(4):
            played = self.play(seed, clock, 50, 0)
            seed, clock = played["state"], played["clock"]
            used.append(self.page.memory())
        (script, program, nodes), (script_at_end, program_at_end, nodes_at_end) = used[0], used[-1]
        self.assertLess(script_at_end, script * 1.1, used)
        self.assertEqual(program_at_end, program, used)
        self.assertLess(nodes_at_end, nodes * 1.1, used)
        print(f"the script holds {script} bytes after 50 turns, {script_at_end} after 200, the program {program}")


if __name__ == "__main__":
    unittest.main(verbosity=2)
