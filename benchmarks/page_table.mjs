// Times of whole allocations in the page, in Chromium, against those of `kaldo` on one thread.
// node benchmarks/page_table.mjs [PARENTS OFFSPRING LOCI]
import { readFileSync } from 'node:fs';
import { spawnSync } from 'node:child_process';
import { join } from 'node:path';
import { command, launch, newFolder, Page, root } from '../tests/web/page.mjs';

const [parents = '10000', offspring = '2000', loci = '20'] = process.argv.slice(2);
const folder = newFolder();
const sizes = ['--parents', parents, '--offspring', offspring, '--loci', loci];
spawnSync(join(root, 'scripts/make-large-example'), [folder, ...sizes], { stdio: 'inherit' });
const files = ['loci', 'parents', 'offspring'].map((name) => join(folder, `${name}.txt`));

/** What the record of a run says that computing took, reading and writing of files left out. */
const computedIn = (run) =>
  Number(/^duration_seconds = (.*)$/m.exec(readFileSync(join(run, 'Run record.toml'), 'utf8'))[1]);

/** Seconds that something takes. */
async function secondsOf(work) {
  const begin = performance.now();
  await work();
  return (performance.now() - begin) / 1000;
}

async function inPage(browser, option) {
  const page = await Page.open(browser);
  await page.give(...files);
  if (option) {
    await page.page.$eval('[name="confidence-on"]', (element) => element.click());
  }
  const whole = await secondsOf(() => page.run());
  const computed = computedIn(join(await page.unpacked(), 'results'));
  await page.close();
  return { whole, computed };
}

async function inKaldo(option) {
  const inputs = ['--loci', files[0], '--parents', files[1], '--offspring', files[2]];
  const words = ['--project', 'results', ...inputs, '--threads', '1', ...option];
  const whole = await secondsOf(() => command(folder, 'allocate', ...words));
  return { whole, computed: computedIn(join(folder, 'results')) };
}

const least = (runs, what) => Math.min(...runs.map((run) => run[what]));
const browser = await launch();
for (const option of ['', '--no-confidence']) {
  const page = [];
  const kaldo = [];
  for (let turn = 0; turn < 3; ++turn) {
    page.push(await inPage(browser, option));
    kaldo.push(await inKaldo(option ? [option] : []));
  }
  for (const what of ['computed', 'whole']) {
    const [here, there] = [least(page, what), least(kaldo, what)];
    const times = `page ${here.toFixed(2)} s, kaldo ${there.toFixed(2)} s`;
    console.log(`${what} ${option}: ${times}, ${(here / there).toFixed(1)} times`);
  }
}
await browser.close();
