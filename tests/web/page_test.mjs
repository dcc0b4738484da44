// The page in Chromium, opened from the disk: what it gives against what the command line gives.
import assert from 'node:assert/strict';
import { spawnSync } from 'node:child_process';
import { cpSync, readFileSync, renameSync, writeFileSync } from 'node:fs';
import { join } from 'node:path';
import { after, before, test } from 'node:test';
import { command, filesIn, hasBrowser, launch, newFolder, Page, root } from './page.mjs';

let browser;
before(async () => {
  browser = await launch();
});
after(() => browser.close());

const example = (name) => join(root, 'examples', name);

for (const id of ['lake', 'ponds', 'lake-simulation', 'ponds-simulation']) {
  test(`the example ${id} gives the files of the command line, which repeats it`, async () => {
    const page = await Page.open(browser);
    await page.openExample(id);
    await page.run();
    const told = await page.texts('#panel-summary pre');
    const folder = await page.unpacked();
    const repeated = command(folder, 'rerun', 'results');
    assert.equal(repeated.status, 0, repeated.stderr);
    assert.match(repeated.stdout, /identical/);

    renameSync(join(folder, 'results'), join(folder, 'of the page'));
    const run = spawnSync('bash', ['-c', told.at(-1).replace(/^kaldo/, '"$KALDO"')], {
      cwd: folder,
      encoding: 'utf8',
      env: {
        ...process.env,
        KALDO: process.env.KALDO ?? join(root, 'build/release/src/cli/kaldo'),
      },
    });
    assert.equal(run.status, 0, run.stderr);
    assert.deepEqual(filesIn(join(folder, 'of the page')), filesIn(join(folder, 'results')));
    assert.equal(told.at(-2), run.stdout);
    await page.close();
  });
}

test('a file that cannot be used is refused in the words of the command line', async () => {
  const folder = newFolder();
  cpSync(example('non-sexed'), folder, { recursive: true });
  const young = readFileSync(join(folder, 'offspring.txt'), 'utf8');
  writeFileSync(join(folder, 'offspring.txt'), young.replace(/\d{6}\s*$/, '12<b>\n'));
  const page = await Page.open(browser);
  await page.run();
  assert.match(await page.text('#run-told'), /missing/);
  await page.drop(...['loci', 'parents', 'offspring'].map((name) => join(folder, `${name}.txt`)));
  await page.shows('#checked .problem');
  assert.match(await page.text('#checked'), /offspring\.txt, line/);
  await page.run();
  const { stderr } = command(
    folder,
    'allocate',
    '--project',
    'results',
    '--loci',
    'loci.txt',
    '--parents',
    'parents.txt',
    '--offspring',
    'offspring.txt',
  );
  assert.deepEqual(await page.texts('#run-told p'), stderr.trimEnd().split('\n'));
  await page.close();
});

test('files of other programs are recognised, converted and allocated', async () => {
  const page = await Page.open(browser);
  const pond = readFileSync(example('foreign/pond.gen'), 'utf8');
  const gaps = join(newFolder(), 'gaps.gen');
  writeFileSync(gaps, pond.replace('124128', '000000'));
  await page.give(gaps);
  await page.shows('#convert');
  assert.match(await page.text('#import-files'), /GENEPOP/);
  const refused = async (why) => {
    await page.click('#convert');
    await page.shows('#import-told .problem');
    assert.match(await page.text('#import-told'), why);
    await page.page.$eval('#import-told', (told) => told.replaceChildren());
  };
  await refused(/--offspring-populations/);
  await page.type('offspring-populations', 'pop3');
  await refused(/1 of 4 parents are undefined/);
  await page.page.select('[name="missing-parents"]', 'keep');
  await page.click('#convert');
  await page.shows('#checked .sound');
  await page.run();
  assert.match(await page.text('.headline'), /offspring have both parents in your files/);
  await page.close();
});

test('a run can be stopped, and the next one is not disturbed', async () => {
  const page = await Page.open(browser);
  await page.openExample('lake-simulation');
  await page.type('iterations', '900');
  await page.type('offspring_per_iteration', '5000');
  await page.click('#run');
  await page.page.waitForFunction(() => document.querySelector('#bar').value > 0);
  await page.click('#cancel');
  await page.page.waitForFunction(() => document.querySelector('#progress').hidden);
  assert.match(await page.text('#run-told'), /^Stopped/);
  await page.type('iterations', '5');
  await page.type('offspring_per_iteration', '20');
  await page.run();
  assert.match(await page.text('.headline'), /any allocation is correct/);
  await page.close();
});

test('loci, error model and other choices are those of the command, and come back', async () => {
  const page = await Page.open(browser);
  await page.openExample('lake');
  await page.type('error', 'nonuniform');
  await page.type('tolerance', '2');
  await page.click('#loci input');
  await page.page.$eval('[name="sequence-on"]', (element) => element.click());
  await page.run();
  assert.match(
    (await page.texts('#panel-summary pre')).at(-1),
    /--tolerance 2 --error nonuniform\S* --use \S+ --sequence$/,
  );
  await page.openTab('sequence');
  const rows = await page.texts('#panel-sequence tbody tr:not(.space)');
  assert.equal(rows.length, 8);

  const folder = await page.unpacked();
  const again = await Page.open(browser);
  const files = ['loci.txt', 'parents.txt', 'offspring.txt', 'results/Run record.toml'];
  await again.give(...files.slice(0, 3).map((name) => join(folder, name)));
  await (await again.page.$('#picker')).uploadFile(join(folder, files[3]));
  await again.shows('[name="sequence-on"]:checked');
  await again.shows('#checked .sound');
  await again.run();
  const [told, command] = (await again.texts('#panel-summary pre')).slice(-2);
  assert.equal(told, (await page.texts('#panel-summary pre')).at(-2));
  assert.match(command, /--tolerance 2 --error nonuniform\S* --use \S+ --sequence/);
  await again.close();
  await page.close();
});

test('offspring are sorted, sought, filtered and looked at; then simulated', async () => {
  const page = await Page.open(browser);
  await page.openExample('lake');
  await page.run();
  const toCheck = await page.texts('#to-check li');
  await page.openTab('offspring');
  const names = () => page.texts('#panel-offspring tbody td:nth-child(2)');
  await page.page.select('#panel-offspring .tools select', 'to check');
  assert.deepEqual(new Set(await names()), new Set(toCheck.map((text) => text.split(':')[0])));
  await page.page.select('#panel-offspring .tools select', 'all');
  await page.page.type('#panel-offspring input[type=search]', 'Adult07');
  const found = await page.texts('#panel-offspring tbody tr:not(.space)');
  assert.ok(found.length > 0 && found.every((text) => text.includes('Adult07')), found);
  await page.page.$eval('#panel-offspring input[type=search]', (element) => {
    element.value = '';
    element.dispatchEvent(new Event('input'));
  });
  await page.click('#panel-offspring th:nth-child(5) button');
  const chances = (await page.texts('#panel-offspring tbody td:nth-child(5)')).map(Number);
  assert.deepEqual(
    chances,
    [...chances].sort((a, b) => a - b),
  );

  await page.openTab('summary');
  await page.click('#to-check button');
  await page.shows('.detail table');
  assert.equal(await page.text('.detail h3'), toCheck[0].split(':')[0]);
  assert.equal((await page.texts('.detail tbody tr')).length, 9);

  await page.openTab('summary');
  await page.click('#trial');
  await page.shows('#file-fields [name="collected"]');
  await page.type('iterations', '3');
  await page.run();
  assert.match(await page.text('#results-title'), /simulation/);
  await page.click('#runs button'); // what was simulated is still there
  assert.match(await page.text('#results-title'), /allocation/);
  assert.deepEqual(await page.texts('#to-check li'), toCheck);
  const told = () => page.text('#panel-summary ul');
  assert.match(await told(), /A simulation like this run \(3 x \d+ pseudo-offspring\)/);
  await page.type('tolerance', '2'); // that is another one
  await page.run();
  await page.click('#runs button');
  assert.doesNotMatch(await told(), /3 x [^]*3 x/);
  await page.close();
});

test('nothing is lost by mistake, and the report can be read alone', async () => {
  const page = await Page.open(browser);
  const asksBefore = () =>
    page.page.evaluate(
      () => !window.dispatchEvent(new Event('beforeunload', { cancelable: true })),
    );
  assert.equal(await asksBefore(), false);
  await page.openExample('lake');
  await page.run();
  assert.equal(await asksBefore(), true);
  await page.openTab('files');
  const report = String(await page.downloaded('#export-html'));
  assert.match(report, /^<!DOCTYPE html>[^]*Every offspring[^]*<\/html>\s*$/);
  await page.shows('#zip');
  await page.unpacked();
  assert.equal(await asksBefore(), false);
  await page.close();
});

test('every view is open to all, in windows of all widths, light and dark', async () => {
  const page = await Page.open(browser);
  const judge = async (view) => {
    for (const width of [3840, 1366, 360]) {
      assert.ok((await page.overflow(width)) <= 0, `${view} is wider than ${width} pixels`);
    }
    assert.deepEqual(await page.findings(), [], view);
    await page.inColours('dark');
    assert.deepEqual(await page.findings('color-contrast'), [], `${view}, dark`);
    await page.inColours('light');
  };
  await judge('the empty page');
  await page.give(example('foreign/pond.gen'));
  await page.shows('#convert');
  await page.openExample('lake');
  await page.page.$$eval('details', (all) => all.forEach((each) => (each.open = true)));
  await judge('the form');
  await page.page.$$eval('details', (all) => all.forEach((each) => (each.open = false)));
  await page.page.$eval('[name="sequence-on"]', (element) => element.click());
  await page.run();
  for (const tab of await page.page.$$eval('[role=tab]', (all) =>
    all.map(({ id }) => id.slice(4)),
  )) {
    await page.openTab(tab);
    await judge(tab);
  }
  await page.openTab('offspring');
  await page.click('#panel-offspring td button');
  await page.shows('.detail table');
  await judge('locus by locus');
  await page.close();
});

test('the keyboard is enough', async () => {
  const page = await Page.open(browser);
  await page.openExample('lake');
  await page.page.focus('#run');
  await page.page.keyboard.press('Enter');
  await page.shows('.headline');
  await page.page.focus('#tab-summary');
  await page.page.keyboard.press('ArrowRight');
  await page.shows('#panel-offspring table');
  await page.page.focus('#panel-offspring td button');
  await page.page.keyboard.press('Enter');
  await page.shows('.detail table');
  await page.close();
});

/** Makes a study and gives it to a new page. */
async function openMade(...sizes) {
  const folder = newFolder();
  const made = spawnSync(join(root, 'scripts/make-large-example'), [folder, ...sizes]);
  assert.equal(made.status, 0);
  const page = await Page.open(browser);
  await page.give(...['loci', 'parents', 'offspring'].map((name) => join(folder, `${name}.txt`)));
  return page;
}

async function expectSameOfCommandLine(page) {
  const repeated = command(await page.unpacked(), 'rerun', 'results');
  assert.equal(repeated.status, 0, repeated.stderr + repeated.stdout);
}

test('weak loci, at which many pairs are alike, give the files of the command line', async () => {
  const weak = ['--loci', '8', '--alleles', '3', '--parents', '200', '--offspring', '60'];
  const page = await openMade(...weak);
  await page.run();
  await expectSameOfCommandLine(page);
  await page.close();
});

test('50,000 parents and 5,000 offspring', async () => {
  const page = await openMade('--parents', '50000', '--offspring', '5000');
  await page.run();
  await page.openTab('parents');
  const { rows, height } = await page.page.$eval('#panel-parents .scroller', (scroller) => {
    scroller.scrollTop = scroller.scrollHeight;
    return { rows: scroller.querySelectorAll('tr').length, height: scroller.scrollHeight };
  });
  assert.ok(rows < 200 && height > 32 * 50000, `${rows} rows, ${height} pixels`);
  await page.page.waitForFunction(
    () =>
      document.querySelector('#panel-parents tbody tr:nth-last-child(2)').ariaRowIndex === '50001',
  );
  await expectSameOfCommandLine(page);
  await page.openTab('summary');
  await page.click('#trial');
  await page.shows('#run-told p');
  assert.match(await page.text('#run-told'), /not collected\. .* room for 50000 parents/);
  await page.close();
});

test('Firefox gives the same', { skip: !hasBrowser('firefox') }, async () => {
  const firefox = await launch('firefox');
  try {
    const page = await Page.open(firefox);
    await page.openExample('lake');
    await page.run();
    const chromium = await Page.open(browser);
    await chromium.openExample('lake');
    await chromium.run();
    assert.equal(await page.text('#panel-summary'), await chromium.text('#panel-summary'));
    assert.deepEqual(page.faults, []);
    await chromium.close();
  } finally {
    await firefox.close();
  }
});
