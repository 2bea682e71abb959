// A reporter for node --test: one row a test, and below the table why the failed ones failed. What the programs say on
// standard error goes there.
export default async function* table(events) {
  const suites = [];
  const failures = [];
  yield `${row('Test', 'Counterpart', 'Result')}${row('---', '---', '---')}`;
  for await (const { type, data } of events) {
    if (type === 'test:stderr') process.stderr.write(data.message);
    if (type === 'test:start') suites[data.nesting] = data.name;
    if ((type !== 'test:pass' && type !== 'test:fail') || (data.details.type === 'suite' && !data.skip)) continue;
    const isSuite = data.details.type === 'suite';
    const counterpart = isSuite ? data.name : suites[data.nesting - 1];
    const reason = typeof data.skip === 'string' ? data.skip : '';
    yield row(isSuite ? '' : data.name, counterpart ?? '', reason || (type === 'test:pass' ? 'passed' : 'FAILED'));
    if (type === 'test:fail') failures.push({ name: data.name, error: data.details.error });
  }
  for (const { name, error } of failures) yield `\n${name}: ${error.cause?.stack ?? error.message}\n`;
}

function row(...cells) {
  const widths = [74, 68, 0];
  return `| ${cells.map((cell, at) => cell.padEnd(widths[at])).join(' | ')} |\n`;
}
