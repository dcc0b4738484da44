// The page as a whole: files in, a form, a run with its progress, and its results.
import { button, byId, h } from './dom';
import { Engine, Stopped } from './engine';
import { examples, type Example } from './examples';
import { choices, StudyForm } from './form';
import { ImportForm } from './import_form';
import type { Checked, Fault, Files } from './protocol';
import { refusalBox, Results } from './results';
import { Study } from './study';
import { Trial } from './trial';
import { version } from 'kaldo-embedded';

const study = new Study();
const answering = new Engine(); // answers while a form is filled in
let running: Engine | undefined;
let finished: Results[] = []; // each with a program of its own, which holds them
let shown: Results | undefined;
let trial: Trial | undefined; // what was last offered to be simulated
let lastCheck = 0;

const form = new StudyForm(study, () => scheduleCheck());
const imports = new ImportForm(answering, (files, hasUndefinedParents) => {
  study.allowUndefinedParents(hasUndefinedParents);
  void addFiles(files, true);
});

function isAllocation(): boolean {
  return study.kind === 'allocation';
}

async function showForm(): Promise<void> {
  choices('kind', [
    {
      text: 'Allocate offspring to parents',
      chosen: isAllocation(),
      choose: () => choose('allocation'),
    },
    {
      text: 'Simulate how far allocations can be trusted',
      chosen: !isAllocation(),
      choose: () => choose('simulation'),
    },
  ]);
  choices('sexed', [
    { text: 'sexes of parents unknown', chosen: !study.sexed, choose: () => setSexed(false) },
    { text: 'males and females known', chosen: study.sexed, choose: () => setSexed(true) },
  ]);
  choices('draws', [
    {
      text: 'after the field work: parents collected',
      chosen: !study.draws,
      choose: () => setDraws(false),
    },
    {
      text: 'before it: parents drawn from a sample',
      chosen: study.draws,
      choose: () => setDraws(true),
    },
  ]);
  byId('draws-part').hidden = isAllocation();
  form.show(await answering.ask('form', { kind: study.kind, typed: study.typed([]) }));
  form.showFiles((path) => void removeFile(path));
  byId('run').textContent = isAllocation() ? 'Allocate' : 'Simulate';
  scheduleCheck();
}

function choose(kind: Study['kind']): void {
  study.kind = kind;
  void showForm();
}

function setSexed(sexed: boolean): void {
  study.sexed = sexed;
  void showForm();
}

function setDraws(draws: boolean): void {
  study.draws = draws;
  void showForm();
}

async function addFiles(all: Files, areImported = false): Promise<void> {
  const isRecord = (path: string): boolean => path.endsWith('.toml');
  const files: Files = new Map([...all].filter(([path]) => !isRecord(path)));
  study.add(files);
  await answering.put(all);
  const record = [...all.keys()].find(isRecord);
  if (record) {
    await openRecord(record);
  }
  if (!areImported) {
    await imports.look([...files.keys()]);
  }
  await showForm();
}

/** Fills in the form as it was for an earlier run. */
async function openRecord(file: string): Promise<void> {
  try {
    const { kind, typed } = await answering.ask('record', { file });
    study.repeat(kind, typed);
    byId('run-told').replaceChildren();
  } catch (error) {
    byId('run-told').replaceChildren(refusalBox(error));
  }
}

async function removeFile(path: string): Promise<void> {
  study.remove(path);
  imports.forget(path);
  await showForm();
}

async function readFiles(list: Iterable<File>): Promise<void> {
  const files: Files = new Map();
  for (const file of list) {
    files.set(file.name, new Uint8Array(await file.arrayBuffer()));
  }
  await addFiles(files);
}

async function openExample(example: Example): Promise<void> {
  for (const path of [...study.files.keys()]) {
    study.remove(path);
    imports.forget(path);
  }
  study.kind = example.kind;
  const encoder = new TextEncoder();
  const files: Files = new Map(
    Object.entries(example.files).map(([name, text]) => [name, encoder.encode(text)]),
  );
  study.add(files);
  study.sexed = example.sexed;
  study.draws = example.draws;
  study.replaceSettings(example.kind, example.typed);
  await answering.put(files);
  await showForm();
  byId('settings').scrollIntoView({ block: 'start' });
}

/** Tells what is wrong before anything runs, once nothing was changed for a moment. */
function scheduleCheck(): void {
  const mine = ++lastCheck;
  setTimeout(() => {
    if (mine === lastCheck) {
      void check(mine);
    }
  }, 250);
}

function allNeededGiven(): boolean {
  return form.settings.every(
    ({ key, applies, required, metavar }) =>
      !(applies && required && metavar === 'FILE') || study.value(key),
  );
}

async function check(mine: number): Promise<void> {
  const place = byId('checked');
  if (!allNeededGiven()) {
    place.replaceChildren();
    form.showLoci([]);
    return;
  }
  const checked = await answering.ask('check', {
    kind: study.kind,
    typed: study.typed(form.settings),
  });
  if (mine === lastCheck) {
    place.replaceChildren(...checkedParts(checked));
    form.showLoci(checked.loci);
  }
}

function faultText(fault: Fault): string {
  const line = fault.line ? `line ${fault.line}` : '';
  const places = [fault.file, line, fault.individual, fault.locus].filter(Boolean).join(', ');
  const found = fault.found ?? '';
  return [fault.sentence, [places, found].filter(Boolean).join(': ')].filter(Boolean).join(' ');
}

function checkedParts(checked: Checked): HTMLElement[] {
  const list = (faults: Fault[]): HTMLElement =>
    h('ul', {}, ...faults.map((fault) => h('li', { textContent: faultText(fault) })));
  const parts: HTMLElement[] = [];
  if (checked.faults.length > 0) {
    parts.push(
      h(
        'div',
        { className: 'problem' },
        h('p', { textContent: 'To be put right:' }),
        list(checked.faults),
      ),
    );
  } else {
    parts.push(h('p', { className: 'sound', textContent: '✓ The files can be used.' }));
  }
  if (checked.warnings.length > 0) {
    parts.push(
      h(
        'details',
        {},
        h('summary', { textContent: `Warnings: ${checked.warnings.length}` }),
        list(checked.warnings),
      ),
    );
  }
  return parts;
}

function showProgress(engine: Engine): void {
  const bar = byId<HTMLProgressElement>('bar');
  const told = byId('progress-text');
  let part = '';
  let began = performance.now();
  engine.listener = {
    onProgress(name, note, done, steps): void {
      if (name !== part) {
        part = name;
        began = performance.now();
      }
      bar.max = Math.max(1, steps);
      bar.value = done;
      const left = done > 0 ? ((performance.now() - began) * (steps - done)) / done : 0;
      const parts = [
        steps > 0 ? `${name}: ${done} of ${steps}` : name,
        note,
        left > 1000 ? `${timeText(left)} left` : '',
      ];
      told.textContent = parts.filter(Boolean).join(', ');
    },
    onSentence(sentence): void {
      byId('run-told').append(h('p', { textContent: sentence }));
    },
  };
}

function timeText(milliseconds: number): string {
  const seconds = Math.round(milliseconds / 1000);
  return `${Math.floor(seconds / 60)}:${String(seconds % 60).padStart(2, '0')}`;
}

async function run(): Promise<void> {
  if (running) {
    return;
  }
  const engine = new Engine();
  running = engine;
  setRunning(true);
  showProgress(engine);
  const inputs: Files = new Map(study.files);
  const { kind, project } = study;
  try {
    await engine.put(inputs);
    const typed = study.typed(form.settings);
    const summary = await engine.ask('run', { kind, typed });
    trial?.tell(kind, typed, summary.trial);
    const results = new Results(
      { engine, summary, project, inputs, isAllocation: kind === 'allocation' },
      () => void simulateLikeIt(results),
    );
    finished.push(results);
    showResults(results);
  } catch (error) {
    if (error instanceof Stopped) {
      byId('run-told').replaceChildren(
        h('p', { textContent: 'Stopped. Earlier results are as they were.' }),
      );
    } else {
      byId('run-told').replaceChildren(refusalBox(error));
      engine.end();
    }
  } finally {
    running = undefined;
    setRunning(false);
  }
}

function showResults(results: Results): void {
  shown = results;
  results.show();
  showRuns();
  byId('results').scrollIntoView({ block: 'start' });
  byId('results-title').focus();
}

/** Results of earlier runs stay at hand, for instance those that a simulation judges. */
function showRuns(): void {
  const runs = finished.map((results, k) => {
    const show = button(`${k + 1}: ${results.run.summary.title}`, () => showResults(results));
    show.setAttribute('aria-pressed', String(results === shown));
    return show;
  });
  byId('runs').replaceChildren(
    ...runs,
    button('Close these results', () => closeResults(), 'close'),
  );
  byId('runs').hidden = finished.length < 2;
  byId('results').hidden = finished.length === 0;
}

function closeResults(): void {
  const question = 'These results were not downloaded. Close them all the same?';
  if (!shown || (shown.isUnsaved && !confirm(question))) {
    return;
  }
  shown.run.engine.end();
  finished = finished.filter((each) => each !== shown);
  const next = finished.at(-1);
  if (next) {
    showResults(next);
  }
}

function setRunning(isRunning: boolean): void {
  byId('progress').hidden = !isRunning;
  byId<HTMLButtonElement>('run').disabled = isRunning;
  if (isRunning) {
    byId('run-told').replaceChildren();
    byId('progress-text').textContent = 'Reading the files';
    byId<HTMLProgressElement>('bar').value = 0;
    byId('cancel').focus();
  }
}

/** Fills in the simulation that tells how far the allocation can be trusted. */
async function simulateLikeIt(allocation: Results): Promise<void> {
  try {
    const { run } = allocation;
    const project = `${run.project}-simulation`;
    const { kind, typed, note } = await run.engine.ask('trial', {});
    for (const [path, bytes] of run.inputs) {
      study.files.set(path, bytes); // other ones may have taken their names meanwhile
    }
    await answering.put(run.inputs);
    study.repeat(kind, { ...typed, project });
    await showForm();
    trial = new Trial(allocation, study.typed(form.settings));
    byId('run-told').replaceChildren(...(note ? [h('p', { textContent: note })] : []));
    byId('settings').scrollIntoView({ block: 'start' });
    byId('run').focus();
  } catch (error) {
    byId('run-told').replaceChildren(refusalBox(error));
  }
}

function listen(): void {
  const drop = byId('drop');
  const picker = byId<HTMLInputElement>('picker');
  picker.onchange = (): void => {
    void readFiles([...(picker.files ?? [])]).then(() => (picker.value = ''));
  };
  for (const name of ['dragover', 'dragenter']) {
    document.addEventListener(name, (event) => {
      event.preventDefault();
      drop.classList.add('over');
    });
  }
  document.addEventListener('dragleave', () => drop.classList.remove('over'));
  document.addEventListener('drop', (event) => {
    event.preventDefault();
    drop.classList.remove('over');
    void readFiles([...(event.dataTransfer?.files ?? [])]);
  });
  byId('run').onclick = (): void => void run();
  byId('cancel').onclick = (): void => running?.end();
  window.addEventListener('beforeunload', (event) => {
    if (running || finished.some((results) => results.isUnsaved)) {
      event.preventDefault();
      event.returnValue = true; // what older browsers look at
    }
  });
}

function showExamples(): void {
  byId('examples').replaceChildren(
    ...examples.map((example) =>
      h(
        'li',
        {},
        button(example.name, () => void openExample(example), `example-${example.id}`),
        ` ${example.what}`,
      ),
    ),
  );
}

byId('version').textContent = version;
listen();
showExamples();
void showForm().catch((error: unknown) => byId('run-told').append(refusalBox(error)));
